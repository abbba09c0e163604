#include "crypto/MD5.h"

#include "crypto/md5/MD5Compression.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <typeinfo>
#include <utility>

namespace {

constexpr std::size_t wordsPerBlock = 16;
constexpr std::size_t bytesPerBlock = 64;

using Block = std::array<std::uint32_t, wordsPerBlock>;

/// Intended: for a length of 57 to 63 modulo 64 the difference wraps around 2^32, so that there are
/// about 2^23 blocks.
std::uint32_t blockCount(std::uint64_t length)
{
    const std::uint64_t bits = 8 * length;
    if (bits % 512 == 448)
        return static_cast<std::uint32_t>((bits + 64 + 512) / 512);
    const auto difference = static_cast<std::uint32_t>(448 - 8 * (length % bytesPerBlock));
    return static_cast<std::uint32_t>((bits + 64 + difference) / 512);
}

/// Intended: a byte from 0x80 on counts as a negative number and sets all higher bits of its word.
std::uint32_t signExtendBytes(std::uint32_t word)
{
    return word | (0U - ((word & 0x80U) << 1)) | (0U - ((word & 0x8000U) << 1)) |
           (0U - ((word & 0x800000U) << 1));
}

Block loadBlock(const char* bytes)
{
    Block words;
    std::memcpy(words.data(), bytes, bytesPerBlock);
    std::transform(words.begin(), words.end(), words.begin(), signExtendBytes);
    return words;
}

/// The text's last bytes, which do not fill a block, with the mark behind them.
Block loadEnd(const char* bytes, std::size_t count)
{
    char end[bytesPerBlock] = {};
    std::copy_n(bytes, count, end);
    Block words = loadBlock(end);
    words[count / 4] |= 0x80U << (8 * (count % 4));
    return words;
}

/// Intended: only the low 32 bits of the length in bits are stored; the last word stays 0.
std::uint32_t storedLength(std::size_t length)
{
    return static_cast<std::uint32_t>(8 * length);
}

bool hasHighBytes(const char* bytes)
{
    std::uint64_t quads[bytesPerBlock / sizeof(std::uint64_t)];
    std::memcpy(quads, bytes, sizeof quads);
    std::uint64_t all = 0;
    for (const std::uint64_t quad : quads)
        all |= quad;
    return (all & 0x8080808080808080U) != 0;
}

void compressWords(md5::State& state, const std::uint32_t* words)
{
    md5::compress(state, reinterpret_cast<const unsigned char*>(words), 1);
}

/// How many blocks from here on can be taken as they lie; not more than fit the nearest cache.
std::size_t plainBlocks(const char* bytes, std::size_t blocks)
{
    constexpr std::size_t limit = 64;
    std::size_t count = 0;
    while (count < std::min(blocks, limit) && !hasHighBytes(bytes + count * bytesPerBlock))
        ++count;
    return count;
}

/// The blocks that the text fills.
void compressText(md5::State& state, const char* bytes, std::size_t blocks)
{
    while (blocks != 0) {
        const std::size_t plain = plainBlocks(bytes, blocks);
        md5::compress(state, reinterpret_cast<const unsigned char*>(bytes), plain);
        bytes += plain * bytesPerBlock;
        blocks -= plain;
        if (blocks != 0) {
            compressWords(state, loadBlock(bytes).data());
            bytes += bytesPerBlock;
            --blocks;
        }
    }
}

/// From the block of the text's end, which is number `whole`, to the last one.
void compressPadding(md5::State& state, Block end, std::size_t whole, std::size_t blocks,
                     std::uint32_t length)
{
    for (std::size_t i = whole + 1; i < blocks; ++i) {
        compressWords(state, end.data());
        end = {};
    }
    end[wordsPerBlock - 2] = length;
    compressWords(state, end.data());
}

} // namespace

// Intended: the state is not reset. Only a plain object does without the padded message: a derived
// class may pad in another way.
std::string MD5::Encode(std::string text)
{
    if (typeid(*this) == typeid(MD5))
        takeText(text);
    else
        takeWords(Padding(std::move(text)));
    return Format(m_state[0]) + Format(m_state[1]) + Format(m_state[2]) + Format(m_state[3]);
}

void MD5::takeText(const std::string& text)
{
    const std::uint32_t blocks = blockCount(text.size());
    m_wordCount = static_cast<std::uint32_t>(blocks * wordsPerBlock);
    const std::size_t whole = text.size() / bytesPerBlock;
    const char* end = text.data() + whole * bytesPerBlock;
    compressText(m_state, text.data(), whole);
    compressPadding(m_state, loadEnd(end, text.size() % bytesPerBlock), whole, blocks,
                    storedLength(text.size()));
}

void MD5::takeWords(std::vector<std::uint32_t> words)
{
    const std::size_t count = std::min<std::size_t>(m_wordCount, words.size());
    for (std::size_t i = 0; i < count / wordsPerBlock; ++i)
        IterateFunc(&words[i * wordsPerBlock], static_cast<int>(wordsPerBlock));
}

std::vector<std::uint32_t> MD5::Padding(std::string text)
{
    const std::uint32_t blocks = blockCount(text.size());
    m_wordCount = static_cast<std::uint32_t>(blocks * wordsPerBlock);
    std::vector<std::uint32_t> words(blocks * wordsPerBlock);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<signed char>(text[i]);
        words[i / 4] |= static_cast<std::uint32_t>(byte) << (8 * (i % 4));
    }
    words[text.size() / 4] |= 0x80U << (8 * (text.size() % 4));
    words[words.size() - 2] = storedLength(text.size());
    return words;
}

void MD5::IterateFunc(unsigned int* block, int /*count*/)
{
    compressWords(m_state, block);
}

std::string MD5::Format(unsigned int value)
{
    constexpr const char* digits = "0123456789abcdef";
    std::string hex;
    for (int shift = 0; shift < 32; shift += 8) {
        hex += digits[value >> (shift + 4) & 15U];
        hex += digits[value >> shift & 15U];
    }
    return hex;
}
