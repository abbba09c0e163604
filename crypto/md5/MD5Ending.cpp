#include "crypto/md5/MD5Ending.h"

#include <algorithm>
#include <cstring>

namespace md5 {

namespace {

/// The bits that each byte of a word but the last passes on to all higher ones.
std::uint32_t signExtendBytes(std::uint32_t word)
{
    return word | (0U - ((word & 0x80U) << 1)) | (0U - ((word & 0x8000U) << 1)) |
           (0U - ((word & 0x800000U) << 1));
}

/// Whether one of the 64 bytes may change its word by its sign: the last byte of a word has no
/// higher bits to set.
bool hasSigns(const char* bytes)
{
    std::uint64_t quads[bytesPerBlock / sizeof(std::uint64_t)];
    std::memcpy(quads, bytes, sizeof quads);
    std::uint64_t all = 0;
    for (const std::uint64_t quad : quads)
        all |= quad;
    return (all & 0x0080808000808080U) != 0;
}

using BlockBytes = std::array<char, bytesPerBlock>;

BlockBytes fillWithZeros(const char* bytes, std::size_t count)
{
    BlockBytes block{};
    std::copy_n(bytes, count, block.begin());
    return block;
}

/// Whether these words have bits that the 64 bytes do not set by themselves.
bool isExtended(const Block& words, const char* bytes)
{
    return std::memcmp(words.data(), bytes, bytesPerBlock) != 0;
}

/// The same for a text's last bytes, with the mark behind them.
bool isEndExtended(const Block& words, const char* bytes, std::size_t count)
{
    BlockBytes block = fillWithZeros(bytes, count);
    block[count] = '\x80';
    return isExtended(words, block.data());
}

/// The blocks behind those that the text fills: one at least, also where the text is so long that
/// their number does not fit 32 bits.
std::uint64_t blocksFromEnd(std::uint64_t length)
{
    const std::uint64_t whole = length / bytesPerBlock;
    const std::uint64_t all = blockCount(length);
    return all > whole ? all - whole : 1;
}

void compressBlock(State& state, const Block& block)
{
    compress(state, reinterpret_cast<const unsigned char*>(block.data()), 1);
}

/// How many blocks from here on can be compressed where they lie; not more than fit the nearest
/// cache.
std::size_t plainBlocks(const char* bytes, std::size_t blocks)
{
    constexpr std::size_t limit = 64;
    std::size_t count = 0;
    while (count < std::min(blocks, limit) && !hasSigns(bytes + count * bytesPerBlock))
        ++count;
    return count;
}

} // namespace

std::uint32_t blockCount(std::uint64_t length)
{
    const std::uint64_t bits = 8 * length;
    if (bits % 512 == 448)
        return static_cast<std::uint32_t>((bits + 64 + 512) / 512);
    // Intended: the difference wraps around 2^32 where it is negative.
    const auto difference = static_cast<std::uint32_t>(448 - 8 * (length % bytesPerBlock));
    return static_cast<std::uint32_t>((bits + 64 + difference) / 512);
}

bool hasLongPadding(std::uint64_t length)
{
    return blockCount(length) > length / bytesPerBlock + 2;
}

std::uint32_t storedLength(std::uint64_t length)
{
    return static_cast<std::uint32_t>(8 * length);
}

Block loadBlock(const char* bytes)
{
    Block words;
    std::memcpy(words.data(), bytes, bytesPerBlock);
    std::transform(words.begin(), words.end(), words.begin(), signExtendBytes);
    return words;
}

Block loadEnd(const char* bytes, std::size_t count)
{
    Block words = loadBlock(fillWithZeros(bytes, count).data());
    words[count / 4] |= 0x80U << (8 * (count % 4));
    return words;
}

bool compressText(State& state, const char* bytes, std::size_t blocks)
{
    bool extended = false;
    while (blocks != 0) {
        const std::size_t plain = plainBlocks(bytes, blocks);
        compress(state, reinterpret_cast<const unsigned char*>(bytes), plain);
        bytes += plain * bytesPerBlock;
        blocks -= plain;
        if (blocks != 0 && hasSigns(bytes)) {
            const Block words = loadBlock(bytes);
            compressBlock(state, words);
            extended = extended || isExtended(words, bytes);
            bytes += bytesPerBlock;
            --blocks;
        }
    }
    return extended;
}

Ending::Ending(const char* rest, std::uint64_t length)
    : m_next(loadEnd(rest, length % bytesPerBlock)),
      m_storedLength(storedLength(length)),
      m_blocksLeft(blocksFromEnd(length)),
      m_signExtended(isEndExtended(m_next, rest, length % bytesPerBlock))
{
}

void Ending::compress(State& state, std::uint64_t blocks)
{
    for (; blocks != 0 && m_blocksLeft != 0; --blocks, --m_blocksLeft) {
        if (m_blocksLeft == 1)
            m_next[wordsPerBlock - 2] = m_storedLength;
        compressBlock(state, m_next);
        m_next = {};
    }
}

} // namespace md5
