#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

/// A buffer between two rows of marker bytes, itself full of them.
class GuardedBytes
{
public:
    explicit GuardedBytes(std::size_t size) : m_bytes(size + 2 * Margin, Marker), m_size(size) {}

    unsigned char* data() { return m_bytes.data() + Margin; }

    /// Expects that exactly the first `count` bytes were written, with `content`.
    void expect(const void* content, std::size_t count) const
    {
        ASSERT_LE(count, m_size);
        const auto begin = m_bytes.begin() + Margin;
        const auto end = begin + static_cast<std::ptrdiff_t>(count);
        EXPECT_TRUE(std::equal(begin, end, static_cast<const unsigned char*>(content)));
        const auto isMarker = [](unsigned char byte) { return byte == Marker; };
        EXPECT_TRUE(std::all_of(m_bytes.begin(), begin, isMarker))
            << "written in front of the buffer";
        EXPECT_TRUE(std::all_of(end, m_bytes.end(), isMarker)) << "written past the content";
    }

    void expectUntouched() const { expect(m_bytes.data(), 0); }

private:
    static constexpr std::ptrdiff_t Margin = 64;
    static constexpr unsigned char Marker = 0xA5;

    std::vector<unsigned char> m_bytes;
    std::size_t m_size;
};
