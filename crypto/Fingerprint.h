#pragma once

#include "crypto/sha256/Sha256Stream.h"

#include <cstdint>
#include <optional>
#include <string>

/// What `Encrypt::Sha256Encode` gives for a text that comes in pieces: the SHA-256 digest of what
/// stands before the first zero byte, in URL-safe Base64 without padding. The digest of the whole
/// text comes with it.
class FingerprintStream
{
public:
    /// Takes the next `count` bytes of the text.
    void add(const char* bytes, std::size_t count);

    /// 43 characters; empty for an empty text. Intended: a text that begins with a zero byte has
    /// the fingerprint of nothing, which is not empty.
    std::string fingerprint() const;

    /// Where the first zero byte stands, if there is one.
    std::optional<std::uint64_t> zeroByte() const;

    /// All bytes so far, zero bytes included.
    const Sha256Stream& whole() const { return m_whole; }

private:
    Sha256Stream m_whole;
    std::optional<Sha256Stream> m_beforeZero;
};

/// What `Encrypt::KdEncode` gives for two texts with these fingerprints: the MD5 digest, as 32
/// lower-case hexadecimal characters, of their characters in turn.
std::string mixFingerprints(const std::string& first, const std::string& second);
