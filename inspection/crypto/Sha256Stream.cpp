#include "inspection/crypto/Sha256Stream.h"

#include "crypto/Base64Encoder.h"
#include "crypto/Sha256.h"
#include "crypto/sha256/Sha256Compression.h"
#include "crypto/sha256/Sha256Constants.h"

#include <algorithm>
#include <vector>

namespace {

constexpr std::size_t lengthSize = 8;

const unsigned char* bytesOf(const char* text)
{
    return reinterpret_cast<const unsigned char*>(text);
}

std::string lengthInBits(std::uint64_t length)
{
    std::string bytes;
    for (int shift = 56; shift >= 0; shift -= 8)
        bytes += static_cast<char>(length * 8 >> shift);
    return bytes;
}

} // namespace

Sha256Stream::Sha256Stream()
{
    std::copy(sha256::initialHash.begin(), sha256::initialHash.end(), m_state);
}

void Sha256Stream::add(const char* bytes, std::size_t count)
{
    m_buffer.add(bytes, count, [this](const char* blocks, std::size_t number) {
        sha256::compress(m_state, bytesOf(blocks), number);
    });
}

std::string Sha256Stream::digest() const
{
    std::string end = m_buffer.rest() + '\x80';
    while (end.size() % BlockBuffer::blockSize != BlockBuffer::blockSize - lengthSize)
        end += '\0';
    end += lengthInBits(length());
    std::vector<std::uint32_t> state(std::begin(m_state), std::end(m_state));
    sha256::compress(state.data(), bytesOf(end.data()), end.size() / BlockBuffer::blockSize);
    std::vector<unsigned char> digest;
    Sha256().produceFinalHashValue(state, &digest);
    return {digest.begin(), digest.end()};
}

std::string Sha256Stream::hexDigest() const
{
    constexpr const char* digits = "0123456789ABCDEF";
    std::string hex;
    if (length() == 0)
        return hex;
    for (const char byte : digest()) {
        hex += digits[static_cast<unsigned char>(byte) >> 4];
        hex += digits[static_cast<unsigned char>(byte) & 15];
    }
    return hex;
}

std::string Sha256Stream::fingerprint() const
{
    const std::string bytes = digest();
    return Base64Encoder::UrlEncode(
        Base64Encoder::Encode(bytesOf(bytes.data()), static_cast<unsigned int>(bytes.size())));
}
