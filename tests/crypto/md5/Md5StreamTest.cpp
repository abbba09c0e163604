#include "crypto/md5/Md5Stream.h"

#include "crypto/MD5.h"
#include "tests/crypto/Bytes.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t longest = 300;
constexpr std::uint64_t allPadding = UINT64_MAX;

/// The digest with up to `padding` blocks of what follows the last block of the text.
std::string hexDigest(const std::string& text, std::size_t split, std::uint64_t padding)
{
    Md5Stream stream;
    stream.add(text.data(), split);
    stream.add(text.data() + split, text.size() - split);
    stream.end();
    stream.pad(padding);
    return stream.hexDigest();
}

bool hasLongPadding(std::size_t length)
{
    return length % 64 >= 57;
}

TEST(Md5StreamTest, GivesTheDigestOfTheClassAtEverySplitOfEveryLength)
{
    const std::string bytes = RandomBytes(53)(longest);
    for (std::size_t length = 0; length <= longest; ++length) {
        if (hasLongPadding(length))
            continue; // their padding takes long: the next tests
        const std::string text = bytes.substr(0, length);
        const std::string expected = MD5().Encode(text);
        for (std::size_t split = 0; split <= length; ++split)
            ASSERT_EQ(expected, hexDigest(text, split, allPadding)) << length << " at " << split;
    }
}

TEST(Md5StreamTest, GivesTheSameStateAtEverySplitBeforeALongPadding)
{
    const std::string bytes = RandomBytes(54)(longest);
    for (std::size_t length = 0; length <= longest; ++length) {
        if (!hasLongPadding(length))
            continue;
        const std::string text = bytes.substr(0, length);
        const std::string expected = hexDigest(text, 0, 2);
        for (std::size_t split = 1; split <= length; ++split)
            ASSERT_EQ(expected, hexDigest(text, split, 2)) << length << " at " << split;
    }
}

class Md5StreamLongPadding : public testing::TestWithParam<std::size_t>
{
};

TEST_P(Md5StreamLongPadding, GivesTheDigestOfTheClassInSteps)
{
    const std::string text = RandomBytes(55)(GetParam());
    Md5Stream stream;
    stream.add(text.data(), text.size());
    stream.end();
    EXPECT_EQ(std::uint64_t{1} << 23, stream.paddingLeft());
    while (stream.pad(100000)) {
    }
    EXPECT_EQ(0U, stream.paddingLeft());
    EXPECT_EQ(MD5().Encode(text), stream.hexDigest());
}

INSTANTIATE_TEST_SUITE_P(Lengths, Md5StreamLongPadding, testing::Values(57, 127));

TEST(Md5StreamTest, PadsByAtMostOneBlockElsewhere)
{
    for (const std::size_t length : {0U, 1U, 55U, 56U, 64U, 120U}) {
        const std::string text(length, 'a');
        Md5Stream stream;
        stream.add(text.data(), length);
        stream.end();
        EXPECT_EQ(length % 64 == 56 ? 1U : 0U, stream.paddingLeft()) << length;
        EXPECT_FALSE(stream.pad(1)) << length;
    }
}

// The lowest and the highest byte, at each place in a word, in a whole block and behind the last.
TEST(Md5StreamTest, TellsWhetherTheSignOfAByteChangesItsWord)
{
    for (const std::size_t place : {0U, 1U, 2U, 3U, 60U, 63U, 64U, 66U, 67U, 80U}) {
        for (const char byte : {'\x7f', '\x80', '\xff'}) {
            std::string text(81, 'a');
            text[place] = byte;
            Md5Stream stream;
            stream.add(text.data(), text.size());
            stream.end();
            EXPECT_EQ(byte != '\x7f' && place % 4 != 3, stream.isSignExtended())
                << place << ": " << toHex(std::string(1, byte));
        }
    }
}

// As the erased part of a flash memory: the bits that the sign would set are set.
TEST(Md5StreamTest, TellsThatTheSignChangesNoWordOfBytesOfFF)
{
    for (const std::size_t length : {4U, 64U, 80U, 112U, 1024U}) {
        const std::string text(length, '\xff');
        Md5Stream stream;
        stream.add(text.data(), length);
        stream.end();
        EXPECT_FALSE(stream.isSignExtended()) << length;
    }
}

TEST(Md5StreamTest, TellsThatTheSignReachesTheMarkBehindTheText)
{
    const std::string text(67, '\xff');
    Md5Stream stream;
    stream.add(text.data(), text.size());
    stream.end();
    EXPECT_TRUE(stream.isSignExtended());
}

TEST(Md5StreamTest, TellsWhichLengthsHaveALongPadding)
{
    for (std::size_t length = 0; length <= 200; ++length) {
        const std::string text(length, 'a');
        Md5Stream stream;
        stream.add(text.data(), length);
        EXPECT_EQ(hasLongPadding(length), stream.hasLongPadding()) << length;
    }
}

} // namespace
