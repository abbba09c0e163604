#include "trace/recorder/Utf8.h"

#include <cstddef>

namespace recorder::utf8 {

namespace {

constexpr std::uint32_t invalidByte = 0xDC00;

// The bytes of a character that begins so, and the lowest code that needs as many; 0: none does.
struct Beginning
{
    std::size_t length;
    std::uint32_t bits;
    std::uint32_t lowest;
};

Beginning beginningOf(unsigned char first)
{
    if (first < 0x80)
        return {1, first, 0};
    if ((first & 0xE0U) == 0xC0)
        return {2, first & 0x1FU, 0x80};
    if ((first & 0xF0U) == 0xE0)
        return {3, first & 0x0FU, 0x800};
    if ((first & 0xF8U) == 0xF0)
        return {4, first & 0x07U, 0x10000};
    return {0, 0, 0};
}

char continuation(std::uint32_t code, unsigned int shift)
{
    return static_cast<char>(0x80U | ((code >> shift) & 0x3FU));
}

} // namespace

std::uint32_t takeFirst(std::string_view& text)
{
    const auto first = static_cast<unsigned char>(text.front());
    const Beginning beginning = beginningOf(first);
    std::uint32_t code = beginning.bits;
    bool isValid = beginning.length != 0 && beginning.length <= text.size();
    for (std::size_t i = 1; isValid && i < beginning.length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        isValid = (next & 0xC0U) == 0x80;
        code = (code << 6U) | (next & 0x3FU);
    }
    isValid = isValid && code >= beginning.lowest && code <= lastCode && !isSurrogate(code);
    text.remove_prefix(isValid ? beginning.length : 1);
    return isValid ? code : invalidByte + first;
}

void append(std::string& text, std::uint32_t code)
{
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0U | (code >> 6U));
        text += continuation(code, 0);
    } else if (code < 0x10000) {
        text += static_cast<char>(0xE0U | (code >> 12U));
        text += continuation(code, 6);
        text += continuation(code, 0);
    } else {
        text += static_cast<char>(0xF0U | (code >> 18U));
        text += continuation(code, 12);
        text += continuation(code, 6);
        text += continuation(code, 0);
    }
}

} // namespace recorder::utf8
