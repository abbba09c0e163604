// Texts beyond what 32 bits can count, which take too long where instructions are emulated or
// watched.

#include "crypto/Base64Encoder.h"
#include "crypto/MD5.h"
#include "tests/crypto/Md5BlockPeer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

constexpr std::uint32_t word = 0x61616161;

/// The digest of 2^29 + 5 times "a" by the peer, with the low 32 bits of its 2^32 + 40 bits.
std::string peerDigest()
{
    std::uint32_t block[16];
    std::fill(std::begin(block), std::end(block), word);
    Md5BlockPeer peer;
    for (std::size_t i = 0; i < (1UL << 29) / 64; ++i)
        peer.take(block);
    const std::uint32_t end[16] = {word, 0x8061, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 40, 0};
    peer.take(end);
    return peer.digest();
}

TEST(MD5LargeText, CountsItsBitsIn32Bits)
{
    EXPECT_EQ(peerDigest(), MD5().Encode(std::string((1UL << 29) + 5, 'a')));
}

/// A string of `size` bytes that begins with `start`. The rest is never written, so that it takes
/// addresses but no memory: the size is put where the standard library keeps it, behind the
/// pointer.
std::string largeText(std::size_t size, std::string_view start)
{
    std::string text;
    text.reserve(size);
    start.copy(text.data(), start.size());
    std::memcpy(reinterpret_cast<char*>(&text) + sizeof(char*), &size, sizeof size);
    return text;
}

// The length is cut off to 4.
TEST(Base64LargeText, DecodesOnlyAsFarAs32BitsCount)
{
    const std::string text = largeText((1UL << 32) + 4, "QUJDREVG");
    ASSERT_EQ((1UL << 32) + 4, text.size());
    ASSERT_EQ("QUJDREVG", text.substr(0, 8));
    EXPECT_EQ("ABC", Base64Encoder::Decode(text));
}

} // namespace
