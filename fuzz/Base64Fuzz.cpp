#include "crypto/Base64Encoder.h"
#include "fuzz/Expectation.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace {

// Bit by bit, as RFC 4648 describes it; what is not a whole byte at the end is dropped.
std::string decodedPlainly(const std::string& text)
{
    const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
    std::string bytes;
    unsigned int bits = 0;
    unsigned int count = 0;
    for (const char character : text) {
        const std::size_t value = alphabet.find(character);
        if (value == std::string::npos)
            break;
        bits = (bits << 6U | static_cast<unsigned int>(value)) & 0xFFFFU;
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(static_cast<unsigned char>(bits >> count));
        }
    }
    return bytes;
}

std::string urlEncodedPlainly(const std::string& text)
{
    std::string result;
    for (const char character : text) {
        if (character != '=')
            result += character == '+' ? '-' : character == '/' ? '_' : character;
    }
    return result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(data, data + size);
    expectThat(Base64Encoder::Decode(text) == decodedPlainly(text), "decoded as by plain decoding");
    expectThat(Base64Encoder::UrlEncode(text) == urlEncodedPlainly(text), "three signs replaced");
    const std::string encoded = Base64Encoder::Encode(data, static_cast<unsigned int>(size));
    expectThat(encoded.size() == (size + 2) / 3 * 4, "whole groups of four characters");
    expectThat(Base64Encoder::Decode(encoded) == text, "what was encoded is decoded again");
    return 0;
}
