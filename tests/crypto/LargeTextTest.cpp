// Texts beyond what 32 bits can count, which take too long where instructions are emulated or
// watched.

#include "crypto/AesEncrypt.h"
#include "crypto/Base64Encoder.h"
#include "crypto/MD5.h"
#include "crypto/Sha256.h"
#include "crypto/md5/Md5Stream.h"
#include "tests/crypto/Bytes.h"
#include "tests/crypto/Digests.h"
#include "tests/crypto/md5/Md5BlockPeer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <string_view>
#include <sys/mman.h>
#include <tuple>

namespace {

constexpr std::uint32_t word = 0x61616161;

/// The digest of 2^29 + 5 times "a" by the peer, with the low 32 bits of its 2^32 + 40 bits.
std::string md5OfTheLowLength()
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
    EXPECT_EQ(md5OfTheLowLength(), MD5().Encode(std::string((1UL << 29) + 5, 'a')));
}

TEST(Sha256LargeText, CountsItsBitsIn64Bits)
{
    const std::vector<unsigned char> message((1UL << 29) + 5, 'a');
    const std::string_view text(reinterpret_cast<const char*>(message.data()), message.size());
    std::vector<unsigned char> digest;
    ASSERT_TRUE(Sha256().encrypt(message, &digest));
    EXPECT_EQ(peerDigest("SHA256", text), toHex(std::string(digest.begin(), digest.end())));
}

TEST(Md5StreamLargeText, TellsFromWhichLengthOnItIsCut)
{
    const std::string piece(std::size_t{1} << 20, 'a');
    Md5Stream stream;
    for (int i = 0; i < 511; ++i)
        stream.add(piece.data(), piece.size());
    stream.add(piece.data(), piece.size() - 1);
    EXPECT_FALSE(stream.hasCutLength());
    stream.add("a", 1);
    EXPECT_TRUE(stream.hasCutLength());
}

constexpr unsigned long longCount = (1UL << 32) + 16;

/// Addresses for that many bytes, of which only the first page can be used.
class LongArea
{
public:
    LongArea()
        : m_start(mmap(nullptr, longCount, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE,
                       -1, 0))
    {
        constexpr std::size_t page = 4096;
        EXPECT_EQ(0, mprotect(m_start, page, PROT_READ | PROT_WRITE));
    }
    ~LongArea() { munmap(m_start, longCount); }

    LongArea(const LongArea&) = delete;
    LongArea& operator=(const LongArea&) = delete;

    char* start() const { return static_cast<char*>(m_start); }

private:
    void* m_start;
};

class AesLongCount : public testing::TestWithParam<std::tuple<int, bool>>
{
};

// A count of which 32 bits were kept would end after one block.
TEST_P(AesLongCount, GoesOnBeyond32Bits)
{
    const auto [mode, encrypts] = GetParam();
    const auto operation = encrypts ? &AesEncrypt::Encrypt : &AesEncrypt::Decrypt;
    const LongArea in;
    const LongArea out;
    AesEncrypt cipher;
    cipher.MakeKey(in.start(), in.start(), 16, 16);
    EXPECT_EXIT((cipher.*operation)(in.start(), out.start(), longCount, mode),
                testing::KilledBySignal(SIGSEGV), "");
}

INSTANTIATE_TEST_SUITE_P(Modes, AesLongCount,
                         testing::Combine(testing::Values(0, 1, 2), testing::Bool()));

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
