#include "platform/registry/StoreSections.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct HiddenGroupsRow
{
    const char* name;
    const char* text;
    bool isHidden;
};

std::ostream& operator<<(std::ostream& out, const HiddenGroupsRow& row)
{
    return out << row.name;
}

constexpr HiddenGroupsRow hiddenGroupsRows[] = {
    {"nothing", "", false},
    {"sections", "[A]\na=1$1\nb\\c=1$1\n[%42%20C]\nx=1$1\n", false},
    {"lines in no section", "a=5$x/y\\z\n[General]\nb=1$1\n", false},
    {"an escaped backslash", "a%5C=1$1\n[A%5CB]\n", false},
    {"a group named General", "[%General]\na\\b=1$1\n", false},
    {"a section below a section", "[A]\na=1$1\n[A\\B]\nb=1$1", true},
    {"a section with a slash", "[A/B]\n", true},
    {"a section with an escaped slash", "[A%2fB]\n", true},
    {"a header behind spaces", "[A]\n \t[A\\B]\n", true},
    {"a header behind a carriage return", "[A]\r[A\\B]\r", true},
    {"levels before all sections", "a\\b=1$1\n[A]\n", true},
    {"levels in the section of no group", "[A]\n[general]\na/b=1$1", true},
};

class HiddenGroups : public testing::TestWithParam<HiddenGroupsRow>
{
};

TEST_P(HiddenGroups, AreWhatAStoreListsOnlyWhenItHasParsedThem)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.ini"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(GetParam().text);
    file.close();
    EXPECT_EQ(GetParam().isHidden, hasHiddenGroups(file.fileName()));
}

INSTANTIATE_TEST_SUITE_P(Rows, HiddenGroups, testing::ValuesIn(hiddenGroupsRows));

TEST(HiddenGroupsOfNoFile, AreNone)
{
    EXPECT_FALSE(hasHiddenGroups("/nowhere/a.ini"));
}

} // namespace
