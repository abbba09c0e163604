#include "crypto/Sha256.h"

#include "crypto/sha256/Sha256Compression.h"
#include "crypto/sha256/Sha256Constants.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr std::size_t chunkSize = 64;
constexpr std::size_t stateSize = 8;
constexpr std::size_t scheduleSize = 64;
constexpr std::size_t lengthSize = 8;

/// What follows a message: 0x80, zeros and the length.
struct Padding
{
    std::array<unsigned char, chunkSize + lengthSize> bytes{};
    std::size_t size = 0;
};

Padding paddingAfter(std::uint64_t length)
{
    Padding padding;
    padding.bytes[0] = 0x80;
    padding.size = 1 + (2 * chunkSize - lengthSize - 1 - length % chunkSize) % chunkSize;
    for (int shift = 56; shift >= 0; shift -= 8)
        padding.bytes[padding.size++] = static_cast<unsigned char>(length * 8 >> shift);
    return padding;
}

/// Replaces `digest` by the words, 4 bytes each.
void writeDigest(const std::uint32_t* words, std::size_t count, std::vector<unsigned char>& digest)
{
    digest.resize(4 * count);
    unsigned char* bytes = digest.data();
    for (std::size_t i = 0; i < count; ++i) {
        for (int shift = 24; shift >= 0; shift -= 8)
            *bytes++ = static_cast<unsigned char>(words[i] >> shift);
    }
}

/// Compresses the last bytes, which do not fill a chunk, together with the padding.
void compressEnd(std::uint32_t* state, const unsigned char* bytes, std::size_t count,
                 std::uint64_t messageLength)
{
    const Padding padding = paddingAfter(messageLength);
    std::array<unsigned char, 2 * chunkSize> end{};
    std::copy_n(bytes, count, end.begin());
    std::copy_n(padding.bytes.begin(), padding.size, end.begin() + count);
    sha256::compress(state, end.data(), (count + padding.size) / chunkSize);
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
    std::uint32_t state[stateSize];
    std::copy(m_initialHash.begin(), m_initialHash.end(), state);
    const std::size_t whole = message.size() / chunkSize * chunkSize;
    sha256::compress(state, message.data(), whole / chunkSize);
    compressEnd(state, message.data() + whole, message.size() - whole, message.size());
    writeDigest(state, stateSize, *digest);
    return true;
}

// Intended: upper case, and nothing for an empty text.
std::string Sha256::getHexMessageDigest(const std::string& text)
{
    std::string hex;
    if (text.empty())
        return hex;
    std::vector<unsigned char> digest;
    encrypt(std::vector<unsigned char>(text.begin(), text.end()), &digest);
    constexpr const char* digits = "0123456789ABCDEF";
    for (const unsigned char byte : digest) {
        hex += digits[byte >> 4];
        hex += digits[byte & 15];
    }
    return hex;
}

bool Sha256::preprocessing(std::vector<unsigned char>* message) const
{
    if (!message)
        return false;
    const Padding padding = paddingAfter(message->size());
    message->insert(message->end(), padding.bytes.begin(), padding.bytes.begin() + padding.size);
    return true;
}

bool Sha256::breakTextInto64ByteChunks(const std::vector<unsigned char>& padded,
                                       std::vector<std::vector<unsigned char>>* chunks) const
{
    if (!chunks || padded.size() % chunkSize != 0)
        return false;
    chunks->clear();
    chunks->reserve(padded.size() / chunkSize);
    for (auto chunk = padded.begin(); chunk != padded.end(); chunk += chunkSize)
        chunks->emplace_back(chunk, chunk + chunkSize);
    return true;
}

bool Sha256::structureWords(const std::vector<unsigned char>& chunk,
                            std::vector<std::uint32_t>* words) const
{
    if (!words || chunk.size() != chunkSize)
        return false;
    words->resize(scheduleSize);
    sha256::expandSchedule(chunk.data(), words->data());
    return true;
}

bool Sha256::transform(const std::vector<std::uint32_t>& words,
                       std::vector<std::uint32_t>* state) const
{
    if (!state || state->size() != stateSize || words.size() != scheduleSize)
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
