#include "tests/pages/profiles/ProfilesPageFixture.h"
#include "tests/support/WaitFor.h"

#include <QCheckBox>

namespace {

class ProfileSortingTest : public ProfilesPageTest
{
protected:
    QTableView& table(const char* view) const { return m_probe.control<QTableView>(view); }
    void sort(const char* view, int column) const
    {
        table(view).sortByColumn(column, Qt::AscendingOrder);
    }
    QStringList column(const char* view, int number) const
    {
        QStringList cells;
        for (int each = 0; each < model(view).rowCount(); ++each)
            cells << row(view, each)[number];
        return cells;
    }
    testing::AssertionResult columnBecomes(const char* view, int number,
                                           const QStringList& cells) const
    {
        return becomes([&] { return column(view, number); }, cells);
    }
    static constexpr int keys = 1;
    static constexpr int wideValues = 2;
    static constexpr int texts = 3;
};

TEST_F(ProfileSortingTest, OrdersTheReadingsByAnyColumn)
{
    open();
    sort("readings", keys);
    EXPECT_TRUE(columnBecomes("readings", keys, {"Host", "Mask", "Query"}));
    sort("readings", wideValues);
    EXPECT_TRUE(columnBecomes("readings", wideValues, {"255", "a=b", "one"}));
    sort("readings", -1);
    EXPECT_TRUE(columnBecomes("readings", keys, {"Host", "Query", "Mask"}));
}

TEST_F(ProfileSortingTest, GoesOnInTheReadingsOfAFileThatIsReadAgain)
{
    open();
    sort("readings", wideValues);
    EXPECT_TRUE(columnBecomes("readings", wideValues, {"255", "a=b", "one"}));
    table("readings").selectRow(1);
    m_file.write("[Net]\nQuery=z=b\nHost=two\nMask=1\n");
    m_probe.page().refresh();
    EXPECT_TRUE(columnBecomes("readings", wideValues, {"1", "two", "z=b"}));
    EXPECT_EQ(m_probe.text("key"), QStringLiteral("Query"));
    EXPECT_EQ(table("readings").currentIndex().row(), 2);
}

TEST_F(ProfileSortingTest, OrdersTheDifferencesAlone)
{
    m_file.write("[S]\na=z=1\nb=1\nc=a=1\n");
    open();
    sort("readings", wideValues);
    m_probe.control<QCheckBox>("onlyDifferences").setChecked(true);
    EXPECT_TRUE(columnBecomes("readings", keys, {"c", "a"}));
    m_probe.control<QCheckBox>("onlyDifferences").setChecked(false);
    EXPECT_TRUE(columnBecomes("readings", keys, {"b", "c", "a"}));
}

TEST_F(ProfileSortingTest, LeavesLinesAndReadingsTogether)
{
    open();
    sort("lines", texts);
    sort("readings", keys);
    EXPECT_TRUE(becomes([this] { return column("lines", texts).first(); }, QString()));
    EXPECT_TRUE(columnBecomes("readings", keys, {"Host", "Mask", "Query"}));
    table("readings").selectRow(1); // Mask
    EXPECT_EQ(row("lines", table("lines").currentIndex().row()).last(), QStringLiteral("Mask=255"));
    const int query = column("lines", texts).indexOf(QStringLiteral("Query=a=b"));
    table("lines").selectRow(query);
    EXPECT_EQ(table("readings").currentIndex().row(), 2);
    EXPECT_TRUE(status().startsWith(QStringLiteral("Line 4. "))) << status().toStdString();
}

TEST_F(ProfileSortingTest, FindsLinesInTheOrderOfTheFile)
{
    open();
    sort("lines", texts);
    EXPECT_TRUE(becomes([this] { return column("lines", texts).first(); }, QString()));
    m_probe.page().find();
    m_probe.type("find", QStringLiteral("=255"));
    QTest::keyClick(&m_probe.control<QWidget>("find"), Qt::Key_Return);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(row("lines", table("lines").currentIndex().row()).last(), QStringLiteral("Mask=255"));
}

} // namespace
