#include "inspection/crypto/TypedKey.h"

#include <gtest/gtest.h>

namespace {

struct KeyRow
{
    const char* typed;
    bool hexadecimal;
    const char* count;
    const char* problem;
    const char* note;
};

class TypedKeyTest : public testing::TestWithParam<KeyRow>
{
};

TEST_P(TypedKeyTest, SaysWhatTheCipherCanUse)
{
    const TypedKey key(TypedKey::Kind::Key, GetParam().typed, GetParam().hexadecimal);
    EXPECT_EQ(key.count(), GetParam().count);
    EXPECT_EQ(key.problem(), GetParam().problem);
    EXPECT_EQ(key.note(), GetParam().note);
}

constexpr const char* tooShort = "The key is too short: the cipher takes 16 bytes.";
constexpr const char* notHexadecimal =
    "The key is not hexadecimal: pairs of 0-9 and a-f are needed.";

INSTANTIATE_TEST_SUITE_P(
    Texts, TypedKeyTest,
    testing::Values(
        KeyRow{"", false, "0 of 16 bytes", tooShort, ""},
        KeyRow{"0123456789abcde", false, "15 of 16 bytes", tooShort, ""},
        KeyRow{"0123456789abcdef", false, "16 of 16 bytes", "", ""},
        KeyRow{"0123456789abcdefX", false, "17 bytes: only the first 16 are used", "",
               "Only the first 16 bytes of the key are used."},
        KeyRow{"0123456789abcde\u00e4", false, "17 bytes: only the first 16 are used", "",
               "Only the first 16 bytes of the key are used."},
        KeyRow{"0123456789abcdef", true, "8 of 16 bytes", tooShort, ""},
        KeyRow{"0123456789abcdefABCDEF9876543210", true, "16 of 16 bytes", "", ""},
        KeyRow{"0123456789abcdefABCDEF987654321", true, "16 of 16 bytes", notHexadecimal, ""},
        KeyRow{"0123456789abcdefABCDEF98765432xx", true, "15 of 16 bytes", notHexadecimal, ""}));

TEST(TypedKey, NamesTheIv)
{
    EXPECT_EQ(TypedKey(TypedKey::Kind::Iv, "x", false).problem(),
              "The IV is too short: the cipher takes 16 bytes.");
    EXPECT_EQ(TypedKey(TypedKey::Kind::Iv, "x", true).problem(),
              "The IV is not hexadecimal: pairs of 0-9 and a-f are needed.");
    EXPECT_EQ(TypedKey(TypedKey::Kind::Iv, QString(17, 'x'), false).note(),
              "Only the first 16 bytes of the IV are used.");
}

TEST(TypedKey, GivesTheBytesThatDigitsStandFor)
{
    EXPECT_EQ(TypedKey(TypedKey::Kind::Key, "00fF", true).bytes(), QByteArray("\0\xff", 2));
    EXPECT_EQ(TypedKey(TypedKey::Kind::Key, "00fF", false).bytes(), "00fF");
}

} // namespace
