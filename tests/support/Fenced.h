#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

/// A record between two rows of marker bytes, filled with marker bytes itself.
template <typename Record>
class Fenced
{
public:
    Fenced() { std::memset(static_cast<void*>(this), marker, sizeof(*this)); }

    Record* get() { return &m_record; }
    Record* operator->() { return &m_record; }

    /// True while nothing was written outside the record.
    bool intact() const { return untouched(m_before) && untouched(m_after); }

    /// True while every byte of this part of the record still holds the marker.
    template <typename Part>
    static bool untouched(const Part& part)
    {
        const auto* bytes = reinterpret_cast<const unsigned char*>(&part);
        return std::all_of(bytes, bytes + sizeof(Part),
                           [](unsigned char b) { return b == marker; });
    }

private:
    static constexpr unsigned char marker = 0xA5;

    unsigned char m_before[64];
    Record m_record;
    unsigned char m_after[64];
};

/// A buffer of wide characters between two rows of marker characters. What the text and its
/// terminator leave of the buffer is filled with markers too.
class FencedText
{
public:
    explicit FencedText(std::size_t size) : m_characters(size + 2 * fence, marker), m_size(size) {}

    /// A buffer that holds `text` and its terminator, as far as they fit.
    FencedText(std::size_t size, const std::wstring& text) : FencedText(size)
    {
        std::copy_n(text.c_str(), std::min(text.size() + 1, size), data());
    }

    static constexpr wchar_t marker = 0x5A5A;

    wchar_t* data() { return m_characters.data() + fence; }

    /// The first `count` characters, whatever they are.
    std::wstring characters(std::size_t count) { return std::wstring(data(), count); }

    /// True while nothing was written outside the first `count` characters of the buffer.
    bool intact(std::size_t count) const
    {
        const auto isMarker = [](wchar_t c) { return c == marker; };
        const auto begin = m_characters.begin();
        const auto start = begin + static_cast<std::ptrdiff_t>(fence);
        return std::all_of(begin, start, isMarker) &&
               std::all_of(start + static_cast<std::ptrdiff_t>(count), m_characters.end(),
                           isMarker);
    }

    /// True while nothing was written outside the buffer.
    bool intact() const { return intact(m_size); }

private:
    static constexpr std::size_t fence = 16;

    std::vector<wchar_t> m_characters;
    std::size_t m_size;
};
