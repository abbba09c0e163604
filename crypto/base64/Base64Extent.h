#pragma once

#include <cstddef>
#include <string>

namespace base64 {

/// How much of a text `Base64Encoder::Decode` decodes, which it does not tell.
struct Extent
{
    /// How many characters count: everything before the first that is not of the alphabet.
    std::size_t length;
    /// True when something other than padding and white space comes behind those characters.
    bool hasIgnored;
    /// True when the last of those characters begins a group of four alone: its six bits make no
    /// byte.
    bool hasLone;
};

Extent extentOf(const std::string& text);

} // namespace base64
