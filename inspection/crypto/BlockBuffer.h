#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

/// Cuts a stream of bytes into blocks of 64 bytes for a digest.
class BlockBuffer
{
public:
    static constexpr std::size_t blockSize = 64;

    /// Calls `take(const char* blocks, std::size_t count)` for what has become whole blocks, and
    /// keeps the rest.
    template <typename Take>
    void add(const char* bytes, std::size_t count, Take take)
    {
        m_length += count;
        if (!m_rest.empty()) {
            const std::size_t missing = std::min(blockSize - m_rest.size(), count);
            m_rest.append(bytes, missing);
            bytes += missing;
            count -= missing;
            if (m_rest.size() < blockSize)
                return;
            take(m_rest.data(), std::size_t{1});
        }
        take(bytes, count / blockSize);
        m_rest.assign(bytes + count - count % blockSize, count % blockSize);
    }

    /// All bytes so far.
    std::uint64_t length() const { return m_length; }
    /// The bytes at the end that do not fill a block.
    const std::string& rest() const { return m_rest; }

private:
    std::string m_rest;
    std::uint64_t m_length = 0;
};
