#include "crypto/Base64Encoder.h"

#include "tests/crypto/Bytes.h"

#include <gtest/gtest.h>
#include <openssl/evp.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

std::string encode(const std::string& bytes)
{
    return Base64Encoder::Encode(reinterpret_cast<const unsigned char*>(bytes.data()),
                                 static_cast<unsigned int>(bytes.size()));
}

struct Row
{
    std::string bytes;
    std::string text;
};

class Base64Rows : public testing::TestWithParam<Row>
{
};

TEST_P(Base64Rows, Encode)
{
    EXPECT_EQ(GetParam().text, encode(GetParam().bytes));
}

TEST_P(Base64Rows, Decode)
{
    EXPECT_EQ(GetParam().bytes, Base64Encoder::Decode(GetParam().text));
}

TEST_P(Base64Rows, DecodeWithoutPadding)
{
    const std::string text = Base64Encoder::UrlEncode(GetParam().text);
    EXPECT_EQ(std::string::npos, text.find('='));
    EXPECT_EQ(GetParam().bytes, Base64Encoder::Decode(text));
}

// The vectors of RFC 4648, then the two characters that are URL-safe, and zeros.
INSTANTIATE_TEST_SUITE_P(Rfc4648, Base64Rows,
                         testing::Values(Row{"", ""}, Row{"f", "Zg=="}, Row{"fo", "Zm8="},
                                         Row{"foo", "Zm9v"}, Row{"foob", "Zm9vYg=="},
                                         Row{"fooba", "Zm9vYmE="}, Row{"foobar", "Zm9vYmFy"},
                                         Row{"\xfb\xff", "-_8="}, Row{"\xff\xff\xff", "____"},
                                         Row{"\xfb\xef\xbe", "----"},
                                         Row{std::string(3, '\0'), "AAAA"},
                                         Row{std::string(1, '\0'), "AA=="}));

class Base64Decode : public testing::TestWithParam<Row>
{
};

TEST_P(Base64Decode, StopsAtTheFirstForeignCharacter)
{
    EXPECT_EQ(toHex(GetParam().bytes), toHex(Base64Encoder::Decode(GetParam().text)));
}

INSTANTIATE_TEST_SUITE_P(Texts, Base64Decode,
                         testing::Values(Row{"ABC", "QUJD"}, Row{"AB", "QUI"}, Row{"AB", "QUI="},
                                         Row{"A", "QU"}, Row{"", "Q"}, Row{"", "Q==="},
                                         Row{"ABC", "QUJD QUJD"}, Row{"ABC", "QUJD\nQUJD"},
                                         Row{"ABC", "QUJD=QUJD"}, Row{"ABC", "QUJDQ"},
                                         Row{"ABCA", "QUJDQU"}, Row{"ABCA", "QUJDQU+D"},
                                         Row{"ABC", "QUJDQ/JD"}, Row{"", "+/8="}, Row{"", "/"},
                                         Row{"", "="}, Row{"", " QUJD"},
                                         Row{"AB", std::string("QUI\0QUJD", 8)},
                                         Row{"ABC", std::string("QUJD\0QUJD", 9)}));

TEST(Base64Decode, LowBitsOfAnIncompleteGroupAreIgnored)
{
    EXPECT_EQ("AB", Base64Encoder::Decode("QUJ"));
    EXPECT_EQ("A", Base64Encoder::Decode("Qf"));
}

// At every place of a group, and with every one of the 256 characters: those from 0x80 on are
// letters in some locales, but never of the alphabet.
TEST(Base64Decode, AcceptsExactlyTheAlphabet)
{
    for (int character = 0; character < 256; ++character) {
        const bool known =
            character != 0 && base64_chars.find(static_cast<char>(character)) != std::string::npos;
        for (std::size_t place = 0; place < 4; ++place) {
            std::string text = "QUJDQUJDQUJD";
            text[4 + place] = static_cast<char>(character);
            const std::size_t expected = known ? 9 : 3 + (place < 2 ? 0 : place - 1);
            EXPECT_EQ(expected, Base64Encoder::Decode(text).size())
                << "character " << character << " at " << place;
        }
    }
}

TEST(Base64Alphabet, IsTheUrlSafeOne)
{
    EXPECT_EQ("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_", base64_chars);
}

TEST(Base64Alphabet, HasTheCharacterOfEachValueAtItsIndex)
{
    for (std::size_t value = 0; value < 64; ++value) {
        const auto byte = static_cast<unsigned char>(value << 2);
        EXPECT_EQ(base64_chars[value], Base64Encoder::Encode(&byte, 1).front());
    }
}

// What is written behind it stands where its terminator is to be.
TEST(Base64Encode, WritesNothingBehindTheText)
{
    for (unsigned int length = 0; length < 100; ++length) {
        const std::vector<unsigned char> bytes(length, 0xA5);
        const std::string text = Base64Encoder::Encode(bytes.data(), length);
        EXPECT_EQ((length + 2) / 3 * 4, text.size());
        EXPECT_EQ(text.size(), std::strlen(text.c_str())) << length;
    }
}

TEST(Base64Encode, TakesNullForNoBytes)
{
    EXPECT_EQ("", Base64Encoder::Encode(nullptr, 0));
}

TEST(Base64UrlEncode, ReplacesTwoCharactersAndDropsPadding)
{
    EXPECT_EQ("a-b_c", Base64Encoder::UrlEncode("a+b/c=="));
    EXPECT_EQ("", Base64Encoder::UrlEncode(""));
    EXPECT_EQ("", Base64Encoder::UrlEncode("==="));
    EXPECT_EQ("ab", Base64Encoder::UrlEncode("=a=b="));
    EXPECT_EQ("-_ \n\xe4", Base64Encoder::UrlEncode("-_ \n\xe4"));
    EXPECT_EQ(std::string("a\0b", 3), Base64Encoder::UrlEncode(std::string("a\0b", 3)));
}

/// OpenSSL's standard Base64 with the two characters replaced.
std::string peerText(const std::string& bytes)
{
    std::string text(4 * ((bytes.size() + 2) / 3) + 1, '\0');
    const int length = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                                       reinterpret_cast<const unsigned char*>(bytes.data()),
                                       static_cast<int>(bytes.size()));
    text.resize(static_cast<std::size_t>(length));
    std::replace(text.begin(), text.end(), '+', '-');
    std::replace(text.begin(), text.end(), '/', '_');
    return text;
}

TEST(Base64Encode, EqualsOpenSslAndDecodesAgain)
{
    RandomBytes random(31);
    for (std::size_t length = 0; length <= 300; ++length) {
        const std::string bytes = random(length);
        const std::string text = encode(bytes);
        EXPECT_EQ(peerText(bytes), text);
        EXPECT_EQ(bytes, Base64Encoder::Decode(text));
    }
    const std::string bytes = random(100001);
    EXPECT_EQ(peerText(bytes), encode(bytes));
    EXPECT_EQ(bytes, Base64Encoder::Decode(encode(bytes)));
}

/// Uses the codec before any ordinary static object of the program has been constructed.
struct EarlyUser
{
    std::string text = Base64Encoder::Encode(reinterpret_cast<const unsigned char*>("ABC"), 3);
    std::string bytes = Base64Encoder::Decode("QUJD");
};

[[gnu::init_priority(101)]] EarlyUser earlyUser;

TEST(Base64Encoder, WorksForEarlierStaticObjects)
{
    EXPECT_EQ("QUJD", earlyUser.text);
    EXPECT_EQ("ABC", earlyUser.bytes);
}

} // namespace
