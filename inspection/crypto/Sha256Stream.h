#pragma once

#include "inspection/crypto/BlockBuffer.h"

#include <string>

/// What `Sha256` and `Encrypt::Sha256Encode` give for a message that comes in pieces. A copy goes
/// on by itself.
class Sha256Stream
{
public:
    Sha256Stream();

    void add(const char* bytes, std::size_t count);

    /// The 32 bytes of the digest of everything so far.
    std::string digest() const;
    /// As `Sha256::getHexMessageDigest`: 64 upper-case characters, empty for an empty message.
    std::string hexDigest() const;
    /// As `Encrypt::Sha256Encode` for a text that is not empty and has no zero byte: 43 characters
    /// of URL-safe Base64.
    std::string fingerprint() const;

    std::uint64_t length() const { return m_buffer.length(); }

private:
    std::uint32_t m_state[8];
    BlockBuffer m_buffer;
};
