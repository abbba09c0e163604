#include "crypto/base64/Base64Extent.h"

#include "crypto/Base64Encoder.h"

#include <gtest/gtest.h>

namespace {

struct ExtentRow
{
    const char* text;
    std::size_t length;
    bool hasIgnored;
    bool hasLone;
};

void PrintTo(const ExtentRow& row, std::ostream* stream)
{
    *stream << '"' << row.text << '"';
}

class Base64ExtentTest : public testing::TestWithParam<ExtentRow>
{
};

TEST_P(Base64ExtentTest, TellsWhatCounts)
{
    const base64::Extent extent = base64::extentOf(GetParam().text);
    EXPECT_EQ(GetParam().length, extent.length);
    EXPECT_EQ(GetParam().hasIgnored, extent.hasIgnored);
    EXPECT_EQ(GetParam().hasLone, extent.hasLone);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Base64ExtentTest,
    testing::Values(ExtentRow{"", 0, false, false}, ExtentRow{"=", 0, false, false},
                    ExtentRow{"+/8=", 0, true, false}, ExtentRow{"QUJD", 4, false, false},
                    ExtentRow{"QUJDQ", 5, false, true}, ExtentRow{"QUJDQU", 6, false, false},
                    ExtentRow{"QUJDQUJ", 7, false, false}, ExtentRow{"QUI=", 3, false, false},
                    ExtentRow{"QUI= \t\r\n", 3, false, false}, ExtentRow{"QUI= x", 3, true, false},
                    ExtentRow{"QUJD QUJD", 4, true, false}, ExtentRow{"Q+", 1, true, true},
                    ExtentRow{"-_", 2, false, false}));

// Every character behind two good ones: where it counts there is a byte more.
TEST(Base64Extent, CountsTheCharactersThatTheCodecDecodes)
{
    for (int code = 0; code < 256; ++code) {
        const std::string text = "QU" + std::string(1, static_cast<char>(code));
        EXPECT_EQ(Base64Encoder::Decode(text).size() + 1, base64::extentOf(text).length) << code;
    }
}

TEST(Base64Extent, IgnoresAZeroByteAndWhatFollows)
{
    const base64::Extent extent = base64::extentOf(std::string("QUJD\0QUJD", 9));
    EXPECT_EQ(4U, extent.length);
    EXPECT_TRUE(extent.hasIgnored);
}

} // namespace
