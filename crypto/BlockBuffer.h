#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

/// Cuts a stream of bytes into the blocks of 64 bytes that a digest compresses.
class BlockBuffer
{
public:
    static constexpr std::size_t blockSize = 64;

    /// Calls `compress(const char* blocks, std::size_t count)` for what has become whole blocks,
    /// and stores the rest. `bytes` may be null where `count` is 0.
    template <typename Compress>
    void add(const char* bytes, std::size_t count, Compress compress)
    {
        m_length += count;
        if (m_restSize != 0) {
            const std::size_t missing = std::min(blockSize - m_restSize, count);
            append(bytes, missing);
            bytes += missing;
            count -= missing;
            if (m_restSize < blockSize)
                return;
            compress(rest(), std::size_t{1});
            m_restSize = 0;
        }
        compress(bytes, count / blockSize);
        append(bytes + (count - count % blockSize), count % blockSize);
    }

    /// The number of all bytes so far.
    std::uint64_t length() const { return m_length; }

    /// The bytes at the end that do not fill a block: `restSize` of them.
    const char* rest() const { return m_rest.data(); }
    std::size_t restSize() const { return m_restSize; }

private:
    void append(const char* bytes, std::size_t count)
    {
        std::copy_n(bytes, count, m_rest.data() + m_restSize);
        m_restSize += count;
    }

    std::array<char, blockSize> m_rest{};
    std::size_t m_restSize = 0;
    std::uint64_t m_length = 0;
};
