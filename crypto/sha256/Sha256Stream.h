#pragma once

#include "crypto/BlockBuffer.h"
#include "crypto/sha256/Sha256Ending.h"

#include <array>
#include <cstdint>
#include <string>

/// What `Sha256` gives for a message that comes in pieces. A copy goes on independently.
class Sha256Stream
{
public:
    using Digest = std::array<unsigned char, sha256::digestSize>;

    Sha256Stream();

    /// Takes the next `count` bytes of the message.
    void add(const char* bytes, std::size_t count);

    /// The digest of everything so far.
    Digest digest() const;

    /// As `Sha256::getHexMessageDigest`: 64 upper-case characters, empty for an empty message.
    std::string hexDigest() const;

    /// The number of all bytes so far.
    std::uint64_t length() const { return m_buffer.length(); }

private:
    std::array<std::uint32_t, sha256::stateSize> m_state;
    BlockBuffer m_buffer;
};
