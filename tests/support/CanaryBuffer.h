#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

/// A buffer between two rows of canaries, itself full of them. A NUL stands behind it all, where
/// reading past an unterminated text ends.
template <typename Element>
class CanaryBuffer
{
    static_assert(std::is_trivially_copyable_v<Element>);

public:
    explicit CanaryBuffer(std::size_t size) : m_elements(margin + size + margin + 1), m_size(size)
    {
        // Bytewise, because elements that are copied need not keep what is in their padding.
        std::memset(static_cast<void*>(m_elements.data()), canary,
                    (m_elements.size() - 1) * sizeof(Element));
    }

    /// A buffer that holds `text` and its terminator, as far as they fit.
    CanaryBuffer(std::size_t size, const std::basic_string<Element>& text) : CanaryBuffer(size)
    {
        std::copy_n(text.c_str(), std::min(text.size() + 1, size), data());
    }

    static constexpr std::size_t margin = 64;

    Element* data() { return m_elements.data() + margin; }
    unsigned int size() const { return static_cast<unsigned int>(m_size); }
    unsigned int bytes() const { return static_cast<unsigned int>(m_size * sizeof(Element)); }

    /// Expects that exactly the first elements were written, with this content.
    template <typename Content>
    void expect(const Content& content)
    {
        expect(content.data(), content.size());
    }

    void expect(const Element* content, std::size_t count)
    {
        ASSERT_LE(count, m_size);
        EXPECT_TRUE(count == 0 || std::memcmp(content, data(), count * sizeof(Element)) == 0)
            << "another content";
        EXPECT_TRUE(areCanaries(m_elements.data(), data())) << "written in front of the buffer";
        EXPECT_TRUE(areCanaries(data() + count, &m_elements.back())) << "written past the content";
    }

    void expectUntouched() { expect(nullptr, 0); }

    /// Whether this part of an element still is full of canaries.
    template <typename Part>
    static bool isUntouched(const Part& part)
    {
        const auto* bytes = reinterpret_cast<const unsigned char*>(&part);
        return std::all_of(bytes, bytes + sizeof part,
                           [](unsigned char byte) { return byte == canary; });
    }

private:
    static constexpr unsigned char canary = 0x5A;

    static bool areCanaries(const Element* begin, const Element* end)
    {
        return std::all_of(begin, end, isUntouched<Element>);
    }

    std::vector<Element> m_elements;
    std::size_t m_size;
};
