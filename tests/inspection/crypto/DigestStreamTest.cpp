#include "crypto/Encrypt.h"
#include "crypto/MD5.h"
#include "crypto/Sha256.h"
#include "inspection/crypto/Md5Stream.h"
#include "inspection/crypto/Sha256Stream.h"

#include <gtest/gtest.h>

namespace {

std::string message(std::size_t length)
{
    std::string text;
    for (std::size_t i = 0; i < length; ++i)
        text += static_cast<char>(1 + i * 31 % 255);
    return text;
}

template <typename Stream>
void addInPieces(Stream& stream, const std::string& text, std::size_t piece)
{
    for (std::size_t at = 0; at < text.size(); at += piece)
        stream.add(text.data() + at, std::min(piece, text.size() - at));
}

std::string md5(const std::string& text, std::size_t piece)
{
    Md5Stream stream;
    addInPieces(stream, text, piece);
    stream.end();
    while (stream.pad(100000)) {
    }
    return stream.hexDigest();
}

constexpr std::size_t pieces[] = {1, 3, 63, 64, 65, 1000};
constexpr std::size_t lengths[] = {0, 1, 3, 55, 56, 57, 63, 64, 65, 119, 120, 128, 1000, 4096};

TEST(Sha256StreamTest, GivesTheDigestOfTheClassHoweverTheMessageIsCut)
{
    for (const std::size_t length : lengths) {
        const std::string text = message(length);
        for (const std::size_t piece : pieces) {
            Sha256Stream stream;
            addInPieces(stream, text, piece);
            EXPECT_EQ(stream.hexDigest(), Sha256().getHexMessageDigest(text)) << length;
            EXPECT_EQ(length == 0 ? "" : stream.fingerprint(), Encrypt::Sha256Encode(text));
        }
    }
}

TEST(Sha256StreamTest, ACopyGoesOnByItself)
{
    Sha256Stream first;
    first.add("ab", 2);
    Sha256Stream second = first;
    first.add("c", 1);
    EXPECT_EQ(first.hexDigest(), Sha256().getHexMessageDigest("abc"));
    EXPECT_EQ(second.hexDigest(), Sha256().getHexMessageDigest("ab"));
}

TEST(Md5StreamTest, GivesTheDigestOfTheClassHoweverTheTextIsCut)
{
    for (const std::size_t length : lengths) {
        if (length % 64 > 56)
            continue; // their padding is long: the next test
        for (const std::size_t piece : pieces)
            EXPECT_EQ(md5(message(length), piece), MD5().Encode(message(length))) << length;
    }
}

TEST(Md5StreamTest, GivesTheDigestOfTheClassWithTheLongPadding)
{
    EXPECT_EQ(md5(message(64 + 57), 64), MD5().Encode(message(64 + 57)));
}

TEST(Md5StreamTest, TellsWhichTextsDepartFromTheStandard)
{
    Md5Stream extended;
    extended.add("\xe4", 1);
    extended.end();
    EXPECT_TRUE(extended.hasExtendedByte());
    Md5Stream lastOfWord;
    lastOfWord.add("abc\xe4", 4);
    lastOfWord.end();
    EXPECT_FALSE(lastOfWord.hasExtendedByte());
    for (const std::size_t length : {56, 57, 63, 64}) {
        Md5Stream stream;
        addInPieces(stream, std::string(length, 'a'), 10);
        EXPECT_EQ(stream.hasLongPadding(), length == 57 || length == 63) << length;
    }
}

} // namespace
