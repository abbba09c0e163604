#include "inspection/crypto/Md5Stream.h"

#include "crypto/MD5.h"
#include "crypto/md5/MD5Compression.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr std::size_t wordsPerBlock = 16;
constexpr std::uint64_t longPadding = std::uint64_t{1} << 23;

using Block = std::array<std::uint32_t, wordsPerBlock>;

// Intended: a byte counts as signed, so one from 0x80 on sets the higher bits of its word.
Block words(const char* bytes, std::size_t count)
{
    Block block{};
    for (std::size_t i = 0; i < count; ++i) {
        const auto byte = static_cast<signed char>(bytes[i]);
        block[i / 4] |= static_cast<std::uint32_t>(byte) << (8 * (i % 4));
    }
    return block;
}

bool isExtended(const char* bytes, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        if ((static_cast<unsigned char>(bytes[i]) & 0x80U) != 0 && i % 4 != 3)
            return true;
    }
    return false;
}

} // namespace

void Md5Stream::add(const char* bytes, std::size_t count)
{
    m_buffer.add(bytes, count,
                 [this](const char* blocks, std::size_t number) { takeBlocks(blocks, number); });
}

void Md5Stream::takeBlocks(const char* blocks, std::size_t count)
{
    const bool extended = isExtended(blocks, count * BlockBuffer::blockSize);
    m_extended = m_extended || extended;
    if (!extended) {
        md5::compress(m_state, reinterpret_cast<const unsigned char*>(blocks), count);
        return;
    }
    for (std::size_t i = 0; i < count; ++i)
        takeWords(words(blocks + i * BlockBuffer::blockSize, BlockBuffer::blockSize).data());
}

void Md5Stream::takeWords(const std::uint32_t* words)
{
    md5::compress(m_state, reinterpret_cast<const unsigned char*>(words), 1);
}

bool Md5Stream::hasLongPadding() const
{
    return m_buffer.rest().size() > 56;
}

void Md5Stream::end()
{
    const std::string& rest = m_buffer.rest();
    m_extended = m_extended || isExtended(rest.data(), rest.size());
    Block block = words(rest.data(), rest.size());
    block[rest.size() / 4] |= 0x80U << (8 * (rest.size() % 4));
    if (rest.size() >= 56) {
        takeWords(block.data());
        block = {};
        m_paddingLeft = hasLongPadding() ? longPadding : 1;
        return;
    }
    block[wordsPerBlock - 2] = static_cast<std::uint32_t>(8 * length());
    takeWords(block.data());
}

bool Md5Stream::pad(std::size_t blocks)
{
    Block block{};
    for (; blocks != 0 && m_paddingLeft != 0; --blocks, --m_paddingLeft) {
        if (m_paddingLeft == 1)
            block[wordsPerBlock - 2] = static_cast<std::uint32_t>(8 * length());
        takeWords(block.data());
    }
    return m_paddingLeft != 0;
}

std::string Md5Stream::hexDigest() const
{
    std::string hex;
    for (const std::uint32_t word : m_state)
        hex += MD5().Format(word);
    return hex;
}
