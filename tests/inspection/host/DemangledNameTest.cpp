#include "inspection/host/DemangledName.h"

#include <gtest/gtest.h>

namespace {

struct NameRow
{
    const char* symbol;
    const char* text;
    const char* qualified;
    const char* last;
};

class DemangledNameRow : public testing::TestWithParam<NameRow>
{
};

TEST_P(DemangledNameRow, HasItsParts)
{
    const NameRow& row = GetParam();
    const DemangledName name{QByteArray(row.symbol)};
    EXPECT_STREQ(row.text, name.text.constData());
    EXPECT_STREQ(row.qualified, name.qualified.constData());
    EXPECT_STREQ(row.last, name.last.constData());
}

INSTANTIATE_TEST_SUITE_P(
    Names, DemangledNameRow,
    testing::Values(
        NameRow{"strcpy_s", "strcpy_s", "strcpy_s", "strcpy_s"}, NameRow{"", "", "", ""},
        NameRow{"_Z8strcpy_sPciPKc", "strcpy_s(char*, int, char const*)", "strcpy_s", "strcpy_s"},
        NameRow{"_ZN5store4openEv", "store::open()", "store::open", "open"},
        NameRow{"_ZN12_GLOBAL__N_14openEv", "(anonymous namespace)::open()",
                "(anonymous namespace)::open", "open"},
        NameRow{"_ZN5storeclEi", "store::operator()(int)", "store::operator()", "operator()"},
        NameRow{"_ZTV5Store", "vtable for Store", "vtable for Store", "vtable for Store"},
        NameRow{"_Zno name at all", "_Zno name at all", "_Zno name at all", "_Zno name at all"}));

TEST(DemangledName, OfATemplateLeavesItsArgumentsOutOfTheLastPart)
{
    const DemangledName name("_ZNSt6vectorIiSaIiEE4sizeEv");
    EXPECT_STREQ("std::vector<int, std::allocator<int> >::size", name.qualified.constData());
}

TEST(DemangledName, StaysAsItIsWhereItWouldTakeTheMemory)
{
    // Each part stands for two of the part before.
    QByteArray symbol = "_Z1fN1AIiiE";
    for (int i = 0; i < 40; ++i)
        symbol += "1AIS" + QByteArray::number(i, 36).toUpper() + "_S" +
                  QByteArray::number(i, 36).toUpper() + "_E";
    symbol += "E";
    EXPECT_EQ(symbol, DemangledName(symbol).text);
}

} // namespace
