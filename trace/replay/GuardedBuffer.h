#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace replay {

/// Memory that a service may write to, between bytes that it must leave alone.
class GuardedBuffer
{
public:
    /// Every byte holds this until it is written. As a character it is no terminator.
    static constexpr unsigned char untouched = 0xA5;

    enum class Limit
    {
        Known,  ///< what lies behind is guarded
        Unknown ///< the service is not told the size: it writes as much as it likes
    };

    /// Of `capacity` bytes, and, where the limit is not known, of many more.
    explicit GuardedBuffer(std::size_t capacity, Limit limit = Limit::Known);

    unsigned char* data() { return m_bytes.data() + guardSize; }
    std::uint64_t address() { return reinterpret_cast<std::uint64_t>(data()); }
    std::size_t capacity() const { return m_capacity; }

    /// Whether the bytes around are as they were.
    bool isWhole() const;

private:
    static constexpr std::size_t guardSize = 256;
    static constexpr std::size_t unknownRoom = std::size_t{64} * 1024;
    static constexpr std::size_t terminatorSize = sizeof(wchar_t); ///< at the very end

    std::size_t m_capacity;
    std::vector<unsigned char> m_bytes;
};

} // namespace replay
