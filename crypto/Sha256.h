#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// SHA-256 (FIPS 180-4) over byte vectors, as a whole or stage by stage.
///
/// The stages report misuse (a null output, a wrong size) by returning false. Nothing is thrown but
/// allocation failures. Hashing does not change the object. The order of the members is relied upon
/// by callers outside.
class Sha256
{
public:
    Sha256();
    virtual ~Sha256() = default;

    Sha256(const Sha256&) = default;
    Sha256& operator=(const Sha256&) = default;

    /// Stores the 32 bytes of the digest of `message` in `digest`, which may be `message` itself.
    bool encrypt(const std::vector<unsigned char>& message, std::vector<unsigned char>* digest);

    /// The digest of all bytes of `text`, embedded zero bytes included, as 64 upper-case
    /// hexadecimal characters. An empty text gives an empty string.
    std::string getHexMessageDigest(const std::string& text);

    /// Appends the padding and the length in bits (64-bit, big-endian): afterwards the size is a
    /// multiple of 64.
    bool preprocessing(std::vector<unsigned char>* message) const;

    /// Replaces `chunks` by one vector of 64 bytes for each chunk of `padded`, whose size must be a
    /// multiple of 64.
    bool breakTextInto64ByteChunks(const std::vector<unsigned char>& padded,
                                   std::vector<std::vector<unsigned char>>* chunks) const;

    /// Replaces `words` by the 64 words of the message schedule of `chunk`, which must have 64
    /// bytes.
    bool structureWords(const std::vector<unsigned char>& chunk,
                        std::vector<std::uint32_t>* words) const;

    /// Compresses a schedule of 64 words into a state of 8.
    bool transform(const std::vector<std::uint32_t>& words,
                   std::vector<std::uint32_t>* state) const;

    /// Replaces `digest` by the words of `state`, 4 bytes each, big-endian.
    bool produceFinalHashValue(const std::vector<std::uint32_t>& state,
                               std::vector<unsigned char>* digest) const;

private:
    std::vector<std::uint32_t> m_initialHash;
    std::vector<std::uint32_t> m_roundConstants;
};
