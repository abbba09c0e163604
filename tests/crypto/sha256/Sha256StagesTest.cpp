#include "crypto/Sha256.h"

#include "tests/crypto/Bytes.h"
#include "tests/crypto/MemberSlot.h"
#include "tests/crypto/ObjectLayout.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using Bytes = std::vector<unsigned char>;
using Words = std::vector<std::uint32_t>;

const Words initialHash = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                           0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};

/// The one chunk that "abc" is padded to, for which FIPS 180 prints every step.
Bytes abcChunk()
{
    Bytes chunk = toVector("abc");
    Sha256().preprocessing(&chunk);
    return chunk;
}

Words abcSchedule()
{
    Words words;
    Sha256().structureWords(abcChunk(), &words);
    return words;
}

class Preprocessing : public testing::TestWithParam<std::size_t>
{
};

TEST_P(Preprocessing, AppendsMarkZerosAndLengthUpToWholeChunks)
{
    const std::size_t length = GetParam();
    const std::string text = RandomBytes(1)(length);
    Bytes message = toVector(text);
    ASSERT_TRUE(Sha256().preprocessing(&message));
    const std::size_t padded = (length + 9 + 63) / 64 * 64;
    std::string expected = text + '\x80' + std::string(padded - length - 9, '\0');
    for (int shift = 56; shift >= 0; shift -= 8)
        expected += static_cast<char>(length * 8 >> shift);
    EXPECT_EQ(toHex(expected), toHex(toString(message)));
}

INSTANTIATE_TEST_SUITE_P(Lengths, Preprocessing,
                         testing::Values(0, 1, 54, 55, 56, 57, 63, 64, 65, 119, 120, 127, 128, 8191,
                                         8192));

TEST(Sha256Stages, PreprocessingRefusesNull)
{
    EXPECT_FALSE(Sha256().preprocessing(nullptr));
}

TEST(Sha256Stages, ChunksReplaceWhatWasThere)
{
    const std::string text = RandomBytes(2)(192);
    std::vector<Bytes> chunks(5, Bytes(3));
    ASSERT_TRUE(Sha256().breakTextInto64ByteChunks(toVector(text), &chunks));
    ASSERT_EQ(3U, chunks.size());
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(text.substr(64 * i, 64), toString(chunks[i]));
}

TEST(Sha256Stages, NoBytesAreNoChunks)
{
    std::vector<Bytes> chunks(5);
    EXPECT_TRUE(Sha256().breakTextInto64ByteChunks({}, &chunks));
    EXPECT_TRUE(chunks.empty());
}

TEST(Sha256Stages, ChunksRefuseNullAndPartialChunks)
{
    EXPECT_FALSE(Sha256().breakTextInto64ByteChunks(Bytes(64), nullptr));
    for (const std::size_t size : {1U, 63U, 65U, 127U}) {
        std::vector<Bytes> chunks(5);
        EXPECT_FALSE(Sha256().breakTextInto64ByteChunks(Bytes(size), &chunks));
        EXPECT_EQ(5U, chunks.size());
    }
}

TEST(Sha256Stages, ScheduleStartsWithTheChunkAndGoesOnAsPublished)
{
    const Words words = abcSchedule();
    ASSERT_EQ(64U, words.size());
    EXPECT_EQ(0x61626380U, words[0]);
    for (std::size_t t = 1; t < 15; ++t)
        EXPECT_EQ(0U, words[t]);
    EXPECT_EQ(0x18U, words[15]);
    EXPECT_EQ(0x61626380U, words[16]);
    EXPECT_EQ(0x000f0000U, words[17]);
    EXPECT_EQ(0x7da86405U, words[18]);
    EXPECT_EQ(0x12b1edebU, words[63]);
}

TEST(Sha256Stages, ScheduleRefusesNullAndOtherSizes)
{
    EXPECT_FALSE(Sha256().structureWords(Bytes(64), nullptr));
    for (const std::size_t size : {0U, 63U, 65U, 128U}) {
        Words words(3, 7U);
        EXPECT_FALSE(Sha256().structureWords(Bytes(size), &words));
        EXPECT_EQ(Words(3, 7U), words);
    }
}

TEST(Sha256Stages, ScheduleIsResizedTo64Words)
{
    Words words(100, 7U);
    EXPECT_TRUE(Sha256().structureWords(abcChunk(), &words));
    EXPECT_EQ(abcSchedule(), words);
}

TEST(Sha256Stages, TransformAddsTheCompressionIntoTheState)
{
    Words state = initialHash;
    ASSERT_TRUE(Sha256().transform(abcSchedule(), &state));
    EXPECT_EQ((Words{0xba7816bf, 0x8f01cfea, 0x414140de, 0x5dae2223, 0xb00361a3, 0x96177a9c,
                     0xb410ff61, 0xf20015ad}),
              state);
}

TEST(Sha256Stages, TransformRefusesNullAndOtherSizes)
{
    EXPECT_FALSE(Sha256().transform(abcSchedule(), nullptr));
    for (const std::size_t size : {0U, 7U, 9U}) {
        Words state(size, 7U);
        EXPECT_FALSE(Sha256().transform(abcSchedule(), &state));
        EXPECT_EQ(Words(size, 7U), state);
    }
    for (const std::size_t size : {0U, 16U, 63U, 65U}) {
        Words state = initialHash;
        EXPECT_FALSE(Sha256().transform(Words(size), &state));
        EXPECT_EQ(initialHash, state);
    }
}

TEST(Sha256Stages, FinalValueReplacesTheDigestByBigEndianWords)
{
    Bytes digest(50, 1);
    EXPECT_TRUE(Sha256().produceFinalHashValue(initialHash, &digest));
    EXPECT_EQ("6a09e667bb67ae853c6ef372a54ff53a510e527f9b05688c1f83d9ab5be0cd19",
              toHex(toString(digest)));
    EXPECT_TRUE(Sha256().produceFinalHashValue({0x01020304}, &digest));
    EXPECT_EQ("01020304", toHex(toString(digest)));
}

TEST(Sha256Stages, FinalValueRefusesNull)
{
    EXPECT_FALSE(Sha256().produceFinalHashValue(initialHash, nullptr));
}

TEST(Sha256Stages, TogetherGiveWhatEncryptGives)
{
    Sha256 sha;
    for (const std::size_t length : {0U, 55U, 56U, 64U, 200U}) {
        const Bytes message = toVector(RandomBytes(3)(length));
        Bytes padded = message;
        std::vector<Bytes> chunks;
        ASSERT_TRUE(sha.preprocessing(&padded));
        ASSERT_TRUE(sha.breakTextInto64ByteChunks(padded, &chunks));
        Words state = initialHash;
        for (const Bytes& chunk : chunks) {
            Words words;
            ASSERT_TRUE(sha.structureWords(chunk, &words));
            ASSERT_TRUE(sha.transform(words, &state));
        }
        Bytes staged;
        ASSERT_TRUE(sha.produceFinalHashValue(state, &staged));
        Bytes digest;
        ASSERT_TRUE(sha.encrypt(message, &digest));
        EXPECT_EQ(digest, staged);
    }
}

TEST(Sha256Stages, AreConst)
{
    const Sha256 sha;
    Bytes bytes;
    EXPECT_TRUE(sha.preprocessing(&bytes));
    std::vector<Bytes> chunks;
    EXPECT_TRUE(sha.breakTextInto64ByteChunks(bytes, &chunks));
    Words words;
    EXPECT_TRUE(sha.structureWords(bytes, &words));
    Words state = initialHash;
    EXPECT_TRUE(sha.transform(words, &state));
    EXPECT_TRUE(sha.produceFinalHashValue(state, &bytes));
}

/// The members in the order that callers outside rely upon.
struct Sha256Layout
{
    void* virtualTable;
    const std::uint32_t* initialBegin;
    const std::uint32_t* initialEnd;
    const std::uint32_t* initialCapacity;
    const std::uint32_t* constantsBegin;
    const std::uint32_t* constantsEnd;
    const std::uint32_t* constantsCapacity;
};

static_assert(sizeof(Sha256) == 56);
static_assert(std::has_virtual_destructor_v<Sha256>);

TEST(Sha256ObjectLayout, HoldsInitialHashAndThenRoundConstants)
{
    const Sha256 sha;
    const auto layout = readLayout<Sha256Layout>(sha);
    EXPECT_EQ(initialHash, Words(layout.initialBegin, layout.initialEnd));
    const Words constants(layout.constantsBegin, layout.constantsEnd);
    ASSERT_EQ(64U, constants.size());
    EXPECT_EQ(0x428a2f98U, constants[0]);
    EXPECT_EQ(0x71374491U, constants[1]);
    EXPECT_EQ(0x06ca6351U, constants[30]);
    EXPECT_EQ(0x14292967U, constants[31]);
    EXPECT_EQ(0xc67178f2U, constants[63]);
}

TEST(Sha256ObjectLayout, OnlyTheDestructorIsVirtual)
{
    EXPECT_EQ(-1, virtualSlot(&Sha256::encrypt));
    EXPECT_EQ(-1, virtualSlot(&Sha256::getHexMessageDigest));
    EXPECT_EQ(-1, virtualSlot(&Sha256::preprocessing));
    EXPECT_EQ(-1, virtualSlot(&Sha256::breakTextInto64ByteChunks));
    EXPECT_EQ(-1, virtualSlot(&Sha256::structureWords));
    EXPECT_EQ(-1, virtualSlot(&Sha256::transform));
    EXPECT_EQ(-1, virtualSlot(&Sha256::produceFinalHashValue));
}

} // namespace
