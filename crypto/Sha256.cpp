#include "crypto/Sha256.h"

#include "crypto/sha256/Sha256Compression.h"
#include "crypto/sha256/Sha256Constants.h"
#include "crypto/sha256/Sha256Ending.h"

#include <algorithm>

namespace {

constexpr std::size_t scheduleSize = 64;

/// Replaces `digest` by the words, 4 bytes each.
void writeDigest(const std::uint32_t* words, std::size_t count, std::vector<unsigned char>& digest)
{
    digest.resize(4 * count);
    sha256::storeWords(words, count, digest.data());
}

} // namespace

Sha256::Sha256()
    : m_initialHash(sha256::initialHash.begin(), sha256::initialHash.end()),
      m_roundConstants(sha256::roundConstants.begin(), sha256::roundConstants.end())
{
}

// The stages without their vectors: the message is hashed where it lies.
bool Sha256::encrypt(const std::vector<unsigned char>& message, std::vector<unsigned char>* digest)
{
    if (!digest)
        return false;
    std::uint32_t state[sha256::stateSize];
    std::copy(m_initialHash.begin(), m_initialHash.end(), state);
    const std::size_t whole = message.size() / sha256::blockSize * sha256::blockSize;
    sha256::compress(state, message.data(), whole / sha256::blockSize);
    sha256::compressEnd(state, message.data() + whole, message.size() - whole, message.size());
    writeDigest(state, sha256::stateSize, *digest);
    return true;
}

// Intended: upper case, and nothing for an empty text.
std::string Sha256::getHexMessageDigest(const std::string& text)
{
    if (text.empty())
        return {};
    std::vector<unsigned char> digest;
    encrypt(std::vector<unsigned char>(text.begin(), text.end()), &digest);
    return sha256::toUpperHex(digest.data(), digest.size());
}

bool Sha256::preprocessing(std::vector<unsigned char>* message) const
{
    if (!message)
        return false;
    const sha256::Padding padding = sha256::paddingAfter(message->size());
    message->insert(message->end(), padding.bytes.begin(), padding.bytes.begin() + padding.size);
    return true;
}

bool Sha256::breakTextInto64ByteChunks(const std::vector<unsigned char>& padded,
                                       std::vector<std::vector<unsigned char>>* chunks) const
{
    if (!chunks || padded.size() % sha256::blockSize != 0)
        return false;
    chunks->clear();
    chunks->reserve(padded.size() / sha256::blockSize);
    for (auto chunk = padded.begin(); chunk != padded.end(); chunk += sha256::blockSize)
        chunks->emplace_back(chunk, chunk + sha256::blockSize);
    return true;
}

bool Sha256::structureWords(const std::vector<unsigned char>& chunk,
                            std::vector<std::uint32_t>* words) const
{
    if (!words || chunk.size() != sha256::blockSize)
        return false;
    words->resize(scheduleSize);
    sha256::expandSchedule(chunk.data(), words->data());
    return true;
}

bool Sha256::transform(const std::vector<std::uint32_t>& words,
                       std::vector<std::uint32_t>* state) const
{
    if (!state || state->size() != sha256::stateSize || words.size() != scheduleSize)
        return false;
    sha256::compressSchedule(state->data(), words.data());
    return true;
}

bool Sha256::produceFinalHashValue(const std::vector<std::uint32_t>& state,
                                   std::vector<unsigned char>* digest) const
{
    if (!digest)
        return false;
    writeDigest(state.data(), state.size(), *digest);
    return true;
}
