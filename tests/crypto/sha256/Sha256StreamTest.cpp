#include "crypto/sha256/Sha256Stream.h"

#include "crypto/Sha256.h"
#include "tests/crypto/Bytes.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t longest = 300;

std::string hexDigest(const std::string& message, std::size_t split)
{
    Sha256Stream stream;
    stream.add(message.data(), split);
    stream.add(message.data() + split, message.size() - split);
    return stream.hexDigest();
}

TEST(Sha256StreamTest, GivesTheDigestOfTheClassAtEverySplitOfEveryLength)
{
    const std::string bytes = RandomBytes(51)(longest);
    for (std::size_t length = 0; length <= longest; ++length) {
        const std::string message = bytes.substr(0, length);
        const std::string expected = Sha256().getHexMessageDigest(message);
        for (std::size_t split = 0; split <= length; ++split)
            ASSERT_EQ(expected, hexDigest(message, split)) << length << " at " << split;
    }
}

TEST(Sha256StreamTest, GivesTheDigestOfTheClassForPiecesOfEverySize)
{
    const std::string message = RandomBytes(52)(1000);
    const std::string expected = Sha256().getHexMessageDigest(message);
    for (std::size_t piece = 1; piece <= 200; ++piece) {
        Sha256Stream stream;
        for (std::size_t at = 0; at < message.size(); at += piece)
            stream.add(message.data() + at, std::min(piece, message.size() - at));
        ASSERT_EQ(expected, stream.hexDigest()) << piece;
        EXPECT_EQ(message.size(), stream.length());
    }
}

// Only the hexadecimal form of the digest of nothing is empty.
TEST(Sha256StreamTest, GivesTheBytesOfTheDigestOfNothing)
{
    const Sha256Stream::Digest digest = Sha256Stream().digest();
    std::vector<unsigned char> expected;
    ASSERT_TRUE(Sha256().encrypt({}, &expected));
    EXPECT_EQ(expected, std::vector<unsigned char>(digest.begin(), digest.end()));
    EXPECT_EQ("", Sha256Stream().hexDigest());
}

TEST(Sha256StreamTest, ACopyGoesOnIndependently)
{
    Sha256Stream first;
    first.add("ab", 2);
    Sha256Stream second = first;
    first.add("c", 1);
    EXPECT_EQ(Sha256().getHexMessageDigest("abc"), first.hexDigest());
    EXPECT_EQ(Sha256().getHexMessageDigest("ab"), second.hexDigest());
}

TEST(Sha256StreamTest, TakesMoreAfterADigest)
{
    Sha256Stream stream;
    stream.add("ab", 2);
    stream.digest();
    stream.add("c", 1);
    EXPECT_EQ(Sha256().getHexMessageDigest("abc"), stream.hexDigest());
}

} // namespace
