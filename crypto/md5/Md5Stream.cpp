#include "crypto/md5/Md5Stream.h"

#include "crypto/MD5.h"

void Md5Stream::add(const char* bytes, std::size_t count)
{
    m_buffer.add(bytes, count, [this](const char* blocks, std::size_t number) {
        m_signExtended |= md5::compressText(m_state, blocks, number);
    });
}

void Md5Stream::end()
{
    m_ending = md5::Ending(m_buffer.rest(), length());
    m_signExtended |= m_ending.isSignExtended();
    m_ending.compress(m_state, 1);
}

bool Md5Stream::pad(std::uint64_t blocks)
{
    m_ending.compress(m_state, blocks);
    return m_ending.blocksLeft() != 0;
}

std::string Md5Stream::hexDigest() const
{
    std::string hex;
    for (const std::uint32_t word : m_state)
        hex += MD5().Format(word);
    return hex;
}
