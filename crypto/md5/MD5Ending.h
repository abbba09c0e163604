#pragma once

#include "crypto/md5/MD5Compression.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// Texts as words and their padding, with the departures from RFC 1321 that `MD5` is to have. Bytes
/// are those of the text, and words are as the compression takes them.
namespace md5 {

inline constexpr std::size_t wordsPerBlock = 16;
inline constexpr std::size_t bytesPerBlock = 64;

using Block = std::array<std::uint32_t, wordsPerBlock>;

/// How many blocks a text of `length` bytes has with its padding. Intended: for a length of 57 to
/// 63 modulo 64 it is about 2^23 more than the text fills.
std::uint32_t blockCount(std::uint64_t length);

/// Whether the padding of such a text is longer than RFC 1321 has it.
bool hasLongPadding(std::uint64_t length);

/// What the last but one word of the padding holds. Intended: only the low 32 bits of the length in
/// bits are stored; the last word stays 0.
std::uint32_t storedLength(std::uint64_t length);

/// The words of 64 bytes. Intended: a byte from 0x80 on counts as a negative number and sets all
/// higher bits of its word.
Block loadBlock(const char* bytes);

/// The words of a text's last bytes, which are less than a block, with the mark behind them.
Block loadEnd(const char* bytes, std::size_t count);

/// Compresses blocks that the text fills. True when the sign of a byte has changed a word.
bool compressText(State& state, const char* bytes, std::size_t blocks);

/// The blocks from a text's last bytes to the end of its padding, compressed in steps of any size.
class Ending
{
public:
    /// There is nothing to compress.
    Ending() = default;

    /// For a text of `length` bytes, whose last `length` modulo 64 bytes are at `rest`.
    Ending(const char* rest, std::uint64_t length);

    /// Compresses up to `blocks` blocks of those that are left.
    void compress(State& state, std::uint64_t blocks);

    /// How many blocks are still to be compressed.
    std::uint64_t blocksLeft() const { return m_blocksLeft; }

    /// Whether the sign of one of the last bytes has changed a word.
    bool isSignExtended() const { return m_signExtended; }

private:
    Block m_next{};
    std::uint32_t m_storedLength = 0;
    std::uint64_t m_blocksLeft = 0;
    bool m_signExtended = false;
};

} // namespace md5
