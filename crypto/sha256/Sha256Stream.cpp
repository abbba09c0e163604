#include "crypto/sha256/Sha256Stream.h"

#include "crypto/sha256/Sha256Compression.h"
#include "crypto/sha256/Sha256Constants.h"

namespace {

const unsigned char* bytesOf(const char* text)
{
    return reinterpret_cast<const unsigned char*>(text);
}

} // namespace

Sha256Stream::Sha256Stream() : m_state(sha256::initialHash) {}

void Sha256Stream::add(const char* bytes, std::size_t count)
{
    m_buffer.add(bytes, count, [this](const char* blocks, std::size_t number) {
        sha256::compress(m_state.data(), bytesOf(blocks), number);
    });
}

Sha256Stream::Digest Sha256Stream::digest() const
{
    auto state = m_state;
    sha256::compressEnd(state.data(), bytesOf(m_buffer.rest()), m_buffer.restSize(), length());
    Digest digest;
    sha256::storeWords(state.data(), state.size(), digest.data());
    return digest;
}

std::string Sha256Stream::hexDigest() const
{
    if (length() == 0)
        return {};
    const Digest bytes = digest();
    return sha256::toUpperHex(bytes.data(), bytes.size());
}
