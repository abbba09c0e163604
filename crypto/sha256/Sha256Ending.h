#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

/// What comes after the whole blocks of a message: its last bytes, the padding and the digest.
namespace sha256 {

inline constexpr std::size_t blockSize = 64;
inline constexpr std::size_t stateSize = 8;
inline constexpr std::size_t lengthSize = 8;
inline constexpr std::size_t digestSize = 4 * stateSize;

/// What follows a message: 0x80, zeros and the length in bits.
struct Padding
{
    std::array<unsigned char, blockSize + lengthSize> bytes{};
    std::size_t size = 0;
};

/// The padding of a message of `length` bytes.
Padding paddingAfter(std::uint64_t length);

/// Compresses the last `count` bytes of a message, which are less than a block, and its padding.
void compressEnd(std::uint32_t* state, const unsigned char* bytes, std::size_t count,
                 std::uint64_t messageLength);

/// Writes `count` words as 4 bytes each, the most significant byte first.
void storeWords(const std::uint32_t* words, std::size_t count, unsigned char* bytes);

/// Two upper-case hexadecimal digits a byte.
std::string toUpperHex(const unsigned char* bytes, std::size_t count);

} // namespace sha256
