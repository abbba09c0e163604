#include "platform/profiles/IniName.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

struct Row
{
    const char* name;
    const char* bytes;
    QString text;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

const auto nameOf = [](const auto& row) { return std::string(row.param.name); };

class IniNameUnescaped : public testing::TestWithParam<Row>
{
};

TEST_P(IniNameUnescaped, StandsForTheName)
{
    EXPECT_EQ(IniName::unescaped(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Names, IniNameUnescaped,
                         testing::Values(Row{"Empty", "", QString()},
                                         Row{"Plain", "Key 1", QStringLiteral("Key 1")},
                                         Row{"Short", "a%20b%3d", QStringLiteral("a b=")},
                                         Row{"Long", "%U8282!", QStringLiteral("节!")},
                                         Row{"Backslash", "a\\b\\", QStringLiteral("a/b/")},
                                         Row{"NoDigits", "%zz%", QStringLiteral("%zz%")},
                                         Row{"CutShort", "%4", QStringLiteral("%4")},
                                         Row{"CutLong", "%U828", QStringLiteral("%U828")},
                                         Row{"SignsAreDigits", "%+1% 2", QStringLiteral("\x1\x2")},
                                         Row{"Bytes", "\xe8\x8a", QStringLiteral(u"\u00e8\u008a")}),
                         nameOf);

class IniNameSectionPrefix : public testing::TestWithParam<Row>
{
};

TEST_P(IniNameSectionPrefix, BeginsTheNamesOfTheSection)
{
    EXPECT_EQ(IniName::sectionPrefix(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Headers, IniNameSectionPrefix,
                         testing::Values(Row{"Plain", "[Net]", QStringLiteral("Net/")},
                                         Row{"Spaces", "[ Net ]", QStringLiteral("Net/")},
                                         Row{"Escaped", "[a%20b\\c]", QStringLiteral("a b/c/")},
                                         Row{"TextBehind", "[Net] = 1]", QStringLiteral("Net/")},
                                         Row{"WithoutEnd", "[Net", QStringLiteral("Net/")},
                                         Row{"BracketAlone", "[", QStringLiteral("/")},
                                         Row{"NoName", "[]", QStringLiteral("/")},
                                         Row{"General", "[gEneral]", QString()},
                                         Row{"GroupOfThatName", "[%GeneRAL]",
                                             QStringLiteral("GeneRAL/")}),
                         nameOf);

} // namespace
