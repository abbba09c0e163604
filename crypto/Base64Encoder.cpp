#include "crypto/Base64Encoder.h"

#include "crypto/base64/Base64Tables.h"

#include <cstdint>
#include <cstring>

const std::string base64_chars(base64::alphabet.data(), base64::alphabet.size());

namespace {

using base64::foreign;

void encodeGroup(const unsigned char* bytes, char* text)
{
    const std::uint32_t group =
        std::uint32_t{bytes[0]} << 16 | std::uint32_t{bytes[1]} << 8 | std::uint32_t{bytes[2]};
    std::memcpy(text, &base64::pairs[group >> 12], 2);
    std::memcpy(text + 2, &base64::pairs[group & 0xfffU], 2);
}

/// One or two bytes left over: filled up with zeros, and as many "=" as bytes are missing.
void encodeRest(const unsigned char* bytes, std::size_t count, char* text)
{
    unsigned char group[3] = {};
    std::memcpy(group, bytes, count);
    encodeGroup(group, text);
    std::memset(text + count + 1, '=', 3 - count);
}

/// The 24 bits of four characters, or more where one of them is foreign.
std::uint32_t groupOf(const unsigned char* text)
{
    return base64::values[0][text[0]] | base64::values[1][text[1]] | base64::values[2][text[2]] |
           base64::values[3][text[3]];
}

void storeBytes(std::uint32_t group, char* bytes, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        bytes[i] = static_cast<char>(group >> (16 - 8 * i));
}

/// Up to three characters before the end or a foreign one; returns the number of bytes stored.
std::size_t decodeRest(const unsigned char* text, std::size_t count, char* bytes)
{
    std::uint32_t group = 0;
    std::size_t accepted = 0;
    for (; accepted < count && base64::values[accepted][text[accepted]] != foreign; ++accepted)
        group |= base64::values[accepted][text[accepted]];
    if (accepted < 2)
        return 0;
    storeBytes(group, bytes, accepted - 1);
    return accepted - 1;
}

} // namespace

std::string Base64Encoder::Encode(const unsigned char* bytes, unsigned int length)
{
    const std::size_t groups = length / 3;
    const std::size_t rest = length % 3;
    std::string text(4 * (groups + (rest != 0 ? 1 : 0)), '\0');
    char* out = text.data();
    for (std::size_t i = 0; i < groups; ++i)
        encodeGroup(bytes + 3 * i, out + 4 * i);
    if (rest != 0)
        encodeRest(bytes + 3 * groups, rest, out + 4 * groups);
    return text;
}

std::string Base64Encoder::Decode(const std::string& text)
{
    const std::size_t length = static_cast<std::uint32_t>(text.size());
    std::string bytes(length / 4 * 3 + 3, '\0');
    const auto* in = reinterpret_cast<const unsigned char*>(text.data());
    const auto* end = in + length;
    char* out = bytes.data();
    while (end - in >= 4) {
        const std::uint32_t group = groupOf(in);
        if (group >= foreign)
            break;
        storeBytes(group, out, 3);
        in += 4;
        out += 3;
    }
    out += decodeRest(in, static_cast<std::size_t>(end - in), out);
    bytes.resize(static_cast<std::size_t>(out - bytes.data()));
    return bytes;
}

std::string Base64Encoder::UrlEncode(const std::string& text)
{
    std::string result;
    result.reserve(text.size());
    for (const char character : text) {
        switch (character) {
        case '+': result += '-'; break;
        case '/': result += '_'; break;
        case '=': break;
        default: result += character; break;
        }
    }
    return result;
}
