#include "crypto/MD5.h"

#include "crypto/md5/MD5Compression.h"
#include "crypto/md5/MD5Ending.h"

#include <algorithm>
#include <typeinfo>
#include <utility>

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
    const std::size_t whole = text.size() / md5::bytesPerBlock;
    m_wordCount = static_cast<std::uint32_t>(md5::blockCount(text.size()) * md5::wordsPerBlock);
    md5::compressText(m_state, text.data(), whole);
    md5::Ending ending(text.data() + whole * md5::bytesPerBlock, text.size());
    ending.compress(m_state, ending.blocksLeft());
}

void MD5::takeWords(std::vector<std::uint32_t> words)
{
    const std::size_t count = std::min<std::size_t>(m_wordCount, words.size());
    for (std::size_t i = 0; i < count / md5::wordsPerBlock; ++i)
        IterateFunc(&words[i * md5::wordsPerBlock], static_cast<int>(md5::wordsPerBlock));
}

std::vector<std::uint32_t> MD5::Padding(std::string text)
{
    const std::uint32_t blocks = md5::blockCount(text.size());
    m_wordCount = static_cast<std::uint32_t>(blocks * md5::wordsPerBlock);
    std::vector<std::uint32_t> words(blocks * md5::wordsPerBlock);
    const std::size_t whole = text.size() / md5::bytesPerBlock;
    const char* bytes = text.data();
    auto out = words.begin();
    for (std::size_t i = 0; i < whole; ++i, bytes += md5::bytesPerBlock) {
        const md5::Block block = md5::loadBlock(bytes);
        out = std::copy(block.begin(), block.end(), out);
    }
    const md5::Block end = md5::loadEnd(bytes, text.size() % md5::bytesPerBlock);
    std::copy(end.begin(), end.end(), out);
    words[words.size() - 2] = md5::storedLength(text.size());
    return words;
}

void MD5::IterateFunc(unsigned int* block, int /*count*/)
{
    md5::compress(m_state, reinterpret_cast<const unsigned char*>(block), 1);
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
