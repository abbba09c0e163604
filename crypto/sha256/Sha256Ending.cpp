#include "crypto/sha256/Sha256Ending.h"

#include "crypto/sha256/Sha256Compression.h"

#include <algorithm>

namespace sha256 {

Padding paddingAfter(std::uint64_t length)
{
    Padding padding;
    padding.bytes[0] = 0x80;
    padding.size = 1 + (2 * blockSize - lengthSize - 1 - length % blockSize) % blockSize;
    for (int shift = 56; shift >= 0; shift -= 8)
        padding.bytes[padding.size++] = static_cast<unsigned char>(length * 8 >> shift);
    return padding;
}

void compressEnd(std::uint32_t* state, const unsigned char* bytes, std::size_t count,
                 std::uint64_t messageLength)
{
    const Padding padding = paddingAfter(messageLength);
    std::array<unsigned char, 2 * blockSize> end{};
    std::copy_n(bytes, count, end.begin());
    std::copy_n(padding.bytes.begin(), padding.size, end.begin() + count);
    compress(state, end.data(), (count + padding.size) / blockSize);
}

void storeWords(const std::uint32_t* words, std::size_t count, unsigned char* bytes)
{
    for (std::size_t i = 0; i < count; ++i) {
        for (int shift = 24; shift >= 0; shift -= 8)
            *bytes++ = static_cast<unsigned char>(words[i] >> shift);
    }
}

std::string toUpperHex(const unsigned char* bytes, std::size_t count)
{
    constexpr const char* digits = "0123456789ABCDEF";
    std::string hex;
    for (std::size_t i = 0; i < count; ++i) {
        hex += digits[bytes[i] >> 4];
        hex += digits[bytes[i] & 15];
    }
    return hex;
}

} // namespace sha256
