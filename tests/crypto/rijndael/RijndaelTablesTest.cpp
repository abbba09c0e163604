#include "crypto/rijndael/RijndaelTables.h"

#include "tests/crypto/Bytes.h"

#include <gtest/gtest.h>

namespace {

template <class Table>
std::string hexOf(const Table& table, std::size_t first, std::size_t count)
{
    return toHex(std::string(table.begin() + first, table.begin() + first + count));
}

// Rows of the S-box as FIPS-197 prints it.
TEST(RijndaelTables, SubstitutionHasThePublishedRows)
{
    EXPECT_EQ("637c777bf26b6fc53001672bfed7ab76", hexOf(rijndael::sBox, 0x00, 16));
    EXPECT_EQ("53d100ed20fcb15b6acbbe394a4c58cf", hexOf(rijndael::sBox, 0x50, 16));
    EXPECT_EQ("e7c8376d8dd54ea96c56f4ea657aae08", hexOf(rijndael::sBox, 0xb0, 16));
    EXPECT_EQ("8ca1890dbfe6426841992d0fb054bb16", hexOf(rijndael::sBox, 0xf0, 16));
}

TEST(RijndaelTables, InverseSubstitutionHasThePublishedRows)
{
    EXPECT_EQ("52096ad53036a538bf40a39e81f3d7fb", hexOf(rijndael::inverseSBox, 0x00, 16));
    EXPECT_EQ("172b047eba77d626e169146355210c7d", hexOf(rijndael::inverseSBox, 0xf0, 16));
}

TEST(RijndaelTables, SubstitutionsAreEachOthersInverse)
{
    for (std::size_t i = 0; i < 256; ++i)
        EXPECT_EQ(i, rijndael::inverseSBox[rijndael::sBox[i]]);
}

TEST(RijndaelTables, RoundConstantsAreThePublishedThirty)
{
    EXPECT_EQ("01020408102040801b366cd8ab4d9a2f5ebc63c697356ad4b37dfaefc591",
              hexOf(rijndael::roundConstants, 0, 30));
}

struct PublishedWord
{
    const rijndael::RowTables& tables;
    std::size_t index;
    std::uint32_t first;
};

class PublishedTables : public testing::TestWithParam<PublishedWord>
{
};

// The second to fourth tables are the first one rotated by one to three bytes.
TEST_P(PublishedTables, HaveTheWordInEachRotation)
{
    const auto& [tables, index, first] = GetParam();
    EXPECT_EQ(first, tables[0][index]);
    EXPECT_EQ(first >> 8 | first << 24, tables[1][index]);
    EXPECT_EQ(first >> 16 | first << 16, tables[2][index]);
    EXPECT_EQ(first >> 24 | first << 8, tables[3][index]);
}

INSTANTIATE_TEST_SUITE_P(
    Words, PublishedTables,
    testing::Values(PublishedWord{rijndael::encryption, 0x00, 0xc66363a5},
                    PublishedWord{rijndael::encryption, 0x01, 0xf87c7c84},
                    PublishedWord{rijndael::encryption, 0x52, 0},
                    PublishedWord{rijndael::encryption, 0xff, 0x2c16163a},
                    PublishedWord{rijndael::decryption, 0x00, 0x51f4a750},
                    PublishedWord{rijndael::decryption, 0x01, 0x7e416553},
                    PublishedWord{rijndael::decryption, 0x63, 0},
                    PublishedWord{rijndael::decryption, 0xff, 0xd0b85742},
                    PublishedWord{rijndael::invMixColumnsTables, 0x00, 0},
                    PublishedWord{rijndael::invMixColumnsTables, 0x01, 0x0e090d0b},
                    PublishedWord{rijndael::invMixColumnsTables, 0x02, 0x1c121a16},
                    PublishedWord{rijndael::invMixColumnsTables, 0xff, 0x8d4697a3}));

static_assert(rijndael::sBox[0x53] == 0xed, "the tables are constants of the program");

} // namespace
