#include "crypto/MD5.h"

#include "crypto/md5/MD5Constants.h"
#include "tests/crypto/AllocationMonitor.h"
#include "tests/crypto/Bytes.h"
#include "tests/crypto/Digests.h"
#include "tests/crypto/MemberSlot.h"
#include "tests/crypto/ObjectLayout.h"
#include "tests/crypto/VectorFile.h"
#include "tests/crypto/md5/Md5BlockPeer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <type_traits>

namespace {

using Words = std::vector<std::uint32_t>;

/// The members in the order that callers outside rely upon.
struct MD5Layout
{
    void* virtualTable;
    std::uint32_t state[4];
    std::uint32_t wordCount;
};

static_assert(sizeof(MD5) == 32);
static_assert(std::is_polymorphic_v<MD5> && !std::has_virtual_destructor_v<MD5>);

MD5Layout layoutOf(const MD5& md5)
{
    return readLayout<MD5Layout>(md5);
}

bool isLong(std::size_t length)
{
    return length % 64 >= 57;
}

std::size_t expectedBlocks(std::size_t length)
{
    const std::size_t usual = (length + 8) / 64 + 1;
    // (8 * length + 64 + 2^32 + 448 - 8 * (length mod 64)) / 512
    return isLong(length) ? length / 64 + 1 + (1U << 23) : usual;
}

/// The words of the text and the mark, byte by byte.
Words wordsOf(const std::string& text, std::size_t blocks)
{
    Words words(16 * blocks);
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::int32_t value = static_cast<unsigned char>(text[i]);
        if (value >= 0x80)
            value -= 0x100;
        words[i / 4] |= static_cast<std::uint32_t>(value) << 8 * (i % 4);
    }
    words[text.size() / 4] |= 0x80U << 8 * (text.size() % 4);
    return words;
}

/// The digest by OpenSSL's block function over the blocks that the departures lead to.
std::string peerOverDepartures(const std::string& text)
{
    const std::size_t own = text.size() / 64 + 1;
    const std::size_t blocks = expectedBlocks(text.size());
    Words words = wordsOf(text, own + (blocks > own ? 1 : 0));
    words[words.size() - 2] = static_cast<std::uint32_t>(8 * text.size());
    Md5BlockPeer peer;
    for (std::size_t i = 0; i < own; ++i)
        peer.take(&words[16 * i]);
    constexpr std::uint32_t zeros[16] = {};
    for (std::size_t i = own + 1; i < blocks; ++i)
        peer.take(zeros);
    if (blocks > own)
        peer.take(&words[16 * own]);
    return peer.digest();
}

std::string ascii(std::size_t length)
{
    std::string text = RandomBytes(static_cast<unsigned int>(length))(length);
    for (char& character : text)
        character = static_cast<char>(character & 0x7f);
    return text;
}

TEST(MD5ObjectLayout, HasThreeVirtualOperationsInOrder)
{
    EXPECT_EQ(0, virtualSlot(&MD5::Encode));
    EXPECT_EQ(1, virtualSlot(&MD5::Padding));
    EXPECT_EQ(2, virtualSlot(&MD5::Format));
    EXPECT_EQ(-1, virtualSlot(&MD5::IterateFunc));
}

TEST(MD5ObjectLayout, HoldsTheInitialStateAndNoWords)
{
    const MD5Layout layout = layoutOf(MD5());
    EXPECT_EQ(0x67452301U, layout.state[0]);
    EXPECT_EQ(0xefcdab89U, layout.state[1]);
    EXPECT_EQ(0x98badcfeU, layout.state[2]);
    EXPECT_EQ(0x10325476U, layout.state[3]);
    EXPECT_EQ(0U, layout.wordCount);
}

TEST(MD5Tables, SinesAreThePublishedOnes)
{
    EXPECT_EQ(0xd76aa478U, md5::sines[0]);
    EXPECT_EQ(0xe8c7b756U, md5::sines[1]);
    EXPECT_EQ(0x8d2a4c8aU, md5::sines[31]);
    EXPECT_EQ(0xeb86d391U, md5::sines[63]);
    for (std::size_t i = 0; i < 64; ++i) {
        const double sine = std::fabs(std::sin(static_cast<double>(i + 1)));
        EXPECT_EQ(static_cast<std::uint32_t>(sine * 4294967296.0), md5::sines[i]);
    }
}

// One of them has 62 bytes, for which the padding is another.
TEST(MD5Vectors, OfTheRfcAreReproducedWhereTheirPaddingIs)
{
    std::size_t checked = 0;
    for (const VectorRecord& record : readVectors("hashes/MD5/rfc-1321.txt")) {
        const std::size_t length = std::stoul(record.at("Len")) / 8;
        if (isLong(length))
            continue;
        const std::string text = fromHex(record.at("Msg")).substr(0, length);
        EXPECT_EQ(record.at("MD"), MD5().Encode(text)) << length << " bytes";
        ++checked;
    }
    EXPECT_EQ(6U, checked);
}

TEST(MD5Encode, EqualsOpenSslForSevenBitTextsOfUsualLengths)
{
    for (std::size_t length = 0; length <= 260; ++length) {
        if (!isLong(length)) {
            EXPECT_EQ(peerDigest("MD5", ascii(length)), MD5().Encode(ascii(length))) << length;
        }
    }
    EXPECT_EQ(peerDigest("MD5", ascii(100000)), MD5().Encode(ascii(100000)));
}

TEST(MD5Encode, SignExtendsHighBytes)
{
    RandomBytes random(17);
    for (std::size_t length = 1; length <= 200; ++length) {
        if (isLong(length))
            continue;
        const std::string text = random(length);
        EXPECT_EQ(peerOverDepartures(text), MD5().Encode(text)) << length << " bytes";
    }
}

class MD5HighByte : public testing::TestWithParam<std::size_t>
{
};

// The byte's own word changes unless the byte is its last one.
TEST_P(MD5HighByte, ChangesTheDigestExceptAtTheEndOfAWord)
{
    std::string text(80, 'x');
    text[GetParam()] = '\xe4';
    EXPECT_EQ(GetParam() % 4 == 3, peerDigest("MD5", text) == MD5().Encode(text));
    EXPECT_EQ(peerOverDepartures(text), MD5().Encode(text));
}

INSTANTIATE_TEST_SUITE_P(Places, MD5HighByte,
                         testing::Values(0, 1, 2, 3, 4, 31, 62, 63, 64, 76, 77, 78, 79));

TEST(MD5Encode, TakesTheByteBelowTheLimitAsItIs)
{
    EXPECT_EQ(peerDigest("MD5", "\x7f\x7f\x7f\x7f\x7f"), MD5().Encode("\x7f\x7f\x7f\x7f\x7f"));
    EXPECT_NE(peerDigest("MD5", "\x80\x80\x80\x80\x80"), MD5().Encode("\x80\x80\x80\x80\x80"));
}

TEST(MD5Encode, GoesOnFromTheStateOfTheCallBefore)
{
    MD5 md5;
    EXPECT_EQ("900150983cd24fb0d6963f7d28e17f72", md5.Encode("abc"));
    EXPECT_EQ("916da5c40fcc17134456df52724c5172", md5.Encode("abc"));
}

TEST(MD5Encode, CountsWordsAsPaddingDoes)
{
    for (const std::size_t length : {0U, 55U, 56U, 64U, 119U, 120U, 1000U}) {
        MD5 md5;
        md5.Encode(std::string(length, 'a'));
        EXPECT_EQ(16 * expectedBlocks(length), layoutOf(md5).wordCount);
    }
}

TEST(MD5Encode, CallsTheOverriddenFormat)
{
    struct Marked : MD5
    {
        std::string Format(unsigned int /*value*/) override { return "x"; }
    };
    EXPECT_EQ("xxxx", Marked().Encode("abc"));
}

TEST(MD5Encode, CallsTheOverriddenPadding)
{
    struct Counting : MD5
    {
        Words Padding(std::string /*text*/) override
        {
            ++calls;
            return MD5::Padding("abc");
        }
        int calls = 0;
    } md5;
    EXPECT_EQ("900150983cd24fb0d6963f7d28e17f72", md5.Encode("xyz"));
    EXPECT_EQ(1, md5.calls);
}

struct PaddedSize
{
    std::size_t words;
    std::size_t blocks;
};

class MD5OverriddenPadding : public testing::TestWithParam<PaddedSize>
{
};

// The text has 32 words, of which the override drops some or to which it adds some.
TEST_P(MD5OverriddenPadding, CountsAsFarAsWordsAndWordCountGo)
{
    struct Resizing : MD5
    {
        Words Padding(std::string text) override
        {
            Words words = MD5::Padding(std::move(text));
            words.resize(GetParam().words);
            return words;
        }
    } md5;
    const std::string text = ascii(100);
    Words words = wordsOf(text, 2);
    words[30] = 800;
    Md5BlockPeer peer;
    for (std::size_t i = 0; i < GetParam().blocks; ++i)
        peer.take(&words[16 * i]);
    EXPECT_EQ(peer.digest(), md5.Encode(text));
}

INSTANTIATE_TEST_SUITE_P(Sizes, MD5OverriddenPadding,
                         testing::Values(PaddedSize{0, 0}, PaddedSize{15, 0}, PaddedSize{16, 1},
                                         PaddedSize{31, 1}, PaddedSize{32, 2}, PaddedSize{48, 2}));

TEST(MD5Encode, TakesNothingWhereAnOverrideLeavesTheWordCount)
{
    struct Own : MD5
    {
        Words Padding(std::string /*text*/) override { return Words(16, 1U); }
    };
    EXPECT_EQ(Md5BlockPeer().digest(), Own().Encode("abc"));
}

TEST(MD5LongPadding, HasTheKnownDigestAndNeedsNoMemory)
{
    const std::string text(60, 'a');
    MD5 md5;
    const AllocationMonitor monitor;
    EXPECT_EQ("5d4f3f157d6362018773d1af4d1a0c69", md5.Encode(text));
    EXPECT_LT(AllocationMonitor::largest(), 1024U);
    EXPECT_EQ(16 * ((1U << 23) + 1), layoutOf(md5).wordCount);
}

class MD5LongLengths : public testing::TestWithParam<std::size_t>
{
};

TEST_P(MD5LongLengths, EqualThePeerOverZeroFilledBlocks)
{
    const std::string text = RandomBytes(18)(GetParam());
    EXPECT_EQ(peerOverDepartures(text), MD5().Encode(text));
}

INSTANTIATE_TEST_SUITE_P(Limits, MD5LongLengths, testing::Values(57, 63, 121));

class MD5Padding : public testing::TestWithParam<std::size_t>
{
};

TEST_P(MD5Padding, HoldsTextMarkAndLength)
{
    const std::string text = RandomBytes(19)(GetParam());
    MD5 md5;
    const Words words = md5.Padding(text);
    Words expected = wordsOf(text, expectedBlocks(text.size()));
    expected[expected.size() - 2] = static_cast<std::uint32_t>(8 * text.size());
    EXPECT_TRUE(expected == words);
    EXPECT_EQ(expected.size(), layoutOf(md5).wordCount);
    EXPECT_EQ(layoutOf(MD5()).state[0], layoutOf(md5).state[0]);
}

INSTANTIATE_TEST_SUITE_P(Lengths, MD5Padding,
                         testing::Values(0, 1, 2, 3, 4, 54, 55, 56, 60, 64, 65, 119, 120, 128,
                                         1000));

TEST(MD5IterateFunc, TakesOneBlockWhateverTheCount)
{
    unsigned int block[16] = {};
    for (unsigned int i = 0; i < 16; ++i)
        block[i] = 0x01010101U * i;
    Md5BlockPeer peer;
    peer.take(block);
    for (const int count : {0, 1, 16, -1}) {
        MD5 md5;
        md5.IterateFunc(block, count);
        const MD5Layout layout = layoutOf(md5);
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(peer.state()[i], layout.state[i]);
        EXPECT_EQ(0U, layout.wordCount);
    }
}

TEST(MD5Format, WritesBytesFromTheLeastSignificantOn)
{
    EXPECT_EQ("78563412", MD5().Format(0x12345678));
    EXPECT_EQ("00000000", MD5().Format(0));
    EXPECT_EQ("efbeadde", MD5().Format(0xdeadbeef));
    EXPECT_EQ("0f000000", MD5().Format(15));
}

} // namespace
