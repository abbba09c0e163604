#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <vector>

/// A buffer between two rows of canaries, itself full of them. A NUL stands behind it all, where
/// reading past an unterminated text ends.
template <typename Element>
class CanaryBuffer
{
public:
    explicit CanaryBuffer(std::size_t size)
        : m_elements(margin + size + margin + 1, canary()), m_size(size)
    {
        m_elements.back() = Element(0);
    }

    static constexpr std::size_t margin = 16;

    static Element canary()
    {
        Element element;
        std::memset(&element, 0x5A, sizeof element);
        return element;
    }

    Element* data() { return m_elements.data() + margin; }
    unsigned int size() const { return static_cast<unsigned int>(m_size); }
    unsigned int bytes() const { return static_cast<unsigned int>(m_size * sizeof(Element)); }

    /// Expects that exactly the first elements were written, with this content.
    template <typename Content>
    void expect(const Content& content)
    {
        ASSERT_LE(content.size(), m_size);
        EXPECT_TRUE(std::equal(content.begin(), content.end(), data())) << "another content";
        EXPECT_TRUE(areCanaries(m_elements.data(), data())) << "written in front of the buffer";
        EXPECT_TRUE(areCanaries(data() + content.size(), &m_elements.back()))
            << "written past the content";
    }

    void expectUntouched() { expect(std::vector<Element>()); }

private:
    static bool areCanaries(const Element* begin, const Element* end)
    {
        return std::all_of(begin, end, [](Element element) { return element == canary(); });
    }

    std::vector<Element> m_elements;
    std::size_t m_size;
};
