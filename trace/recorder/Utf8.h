#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// UTF-8 that may hold anything.
namespace recorder::utf8 {

constexpr std::uint32_t lastCode = 0x10FFFF;

constexpr bool isSurrogate(std::uint32_t code)
{
    return code >= 0xD800 && code <= 0xDFFF;
}

/// Takes the first character away from `text`, which is not empty. A byte that belongs to no
/// character is taken alone and becomes 0xDC00 plus the byte, so that it can be told afterwards.
std::uint32_t takeFirst(std::string_view& text);

/// Appends a character that is not an invalid one.
void append(std::string& text, std::uint32_t code);

} // namespace recorder::utf8
