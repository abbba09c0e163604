#include "window/ColumnFit.h"

#include "tests/support/WaitFor.h"
#include "window/RecordsModel.h"
#include "window/ViewLook.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

#include <gtest/gtest.h>

namespace {

const QString date = QStringLiteral("2000-00-00 00:00:00");

// A table of three columns with long titles, which shows each record in all of them.
class ColumnFitTest : public testing::Test
{
protected:
    ColumnFitTest()
    {
        m_table.setModel(&m_model);
        arrangeTable(m_table);
        m_table.show();
    }

    static std::vector<RecordColumn<QString>> columns()
    {
        const auto text = [](const QString& record) { return record; };
        return {{"One", text}, {"Number two", text}, {"And number three", text}};
    }

    ColumnFit& fit() { return ColumnFit::of(m_table); }
    void resize(int size)
    {
        m_table.resize(size, 200);
        ASSERT_TRUE(waitForExposed(&m_table));
        QApplication::processEvents();
    }
    int width(int column) const { return m_table.columnWidth(column); }
    int title(int column) const { return m_table.horizontalHeader()->sectionSizeHint(column); }
    int wholeWidth() const { return m_table.viewport()->width(); }
    int scrolled() const { return m_table.horizontalScrollBar()->maximum(); }
    int rest() const { return wholeWidth() - width(0); }
    void expectThatAllFits() const
    {
        EXPECT_EQ(width(0) + width(1) + width(2), wholeWidth());
        EXPECT_EQ(scrolled(), 0);
    }

    RecordsModel<QString> m_model{columns()};
    QTableView m_table;
};

TEST_F(ColumnFitTest, GivesTheLastColumnWhatIsLeft)
{
    fit().setSamples({date, "x"});
    resize(900);
    EXPECT_EQ(width(0), sampleWidth(m_table, date));
    EXPECT_EQ(width(1), title(1)) << "the title is wider than the sample";
    expectThatAllFits();
}

TEST_F(ColumnFitTest, GivesAnotherColumnWhatIsLeft)
{
    fit().setSamples({"x", date, date});
    fit().giveRestTo({0});
    for (const int size : {900, 700}) {
        resize(size);
        EXPECT_EQ(width(2), sampleWidth(m_table, date)) << size;
        expectThatAllFits();
    }
}

TEST_F(ColumnFitTest, SharesEvenlyAtEverySize)
{
    fit().setSamples({date, "sample"});
    fit().giveRestTo({1, 2});
    for (const int size : {600, 900, 700}) {
        resize(size);
        EXPECT_EQ(width(1), rest() / 2) << size;
        EXPECT_EQ(width(2), rest() - rest() / 2) << size;
    }
}

TEST_F(ColumnFitTest, FitsColumnsToWhatTheyHold)
{
    resize(900);
    m_model.setRecords({QString(20, QLatin1Char('w'))});
    EXPECT_GT(width(0), m_table.fontMetrics().horizontalAdvance(QString(20, QLatin1Char('w'))));
    EXPECT_EQ(width(1), width(0));
    m_model.setRecords({"w"});
    EXPECT_EQ(width(1), title(1));
    expectThatAllFits();
}

TEST_F(ColumnFitTest, LetsTheWidestGiveWayFirst)
{
    fit().setSamples({QString(100, QLatin1Char('w')), date});
    resize(sampleWidth(m_table, date) * 2 + title(2) + 30);
    EXPECT_EQ(width(1), sampleWidth(m_table, date));
    EXPECT_GT(width(0), width(1));
    EXPECT_EQ(width(2), title(2));
    expectThatAllFits();
}

TEST_F(ColumnFitTest, KeepsTitlesWholeAsLongAsTheyFit)
{
    fit().setSamples({date, date + date});
    resize(title(0) + title(1) + title(2) + 30);
    for (const int column : {0, 1, 2})
        EXPECT_GE(width(column), title(column)) << column;
    expectThatAllFits();
}

TEST_F(ColumnFitTest, ElidesTitlesThatDoNotFit)
{
    fit().setSamples({date, date});
    resize((title(0) + title(1) + title(2)) * 3 / 4);
    EXPECT_LT(width(2), title(2));
    EXPECT_EQ(m_table.horizontalHeader()->textElideMode(), Qt::ElideRight);
    expectThatAllFits();
}

TEST_F(ColumnFitTest, SharesAnewWhenAnotherColumnIsDragged)
{
    fit().giveRestTo({1, 2});
    resize(600);
    m_table.setColumnWidth(0, 200);
    EXPECT_EQ(width(1), rest() / 2);
    expectThatAllFits();
}

TEST_F(ColumnFitTest, LeavesTheColumnsBeforeTheOneThatIsDragged)
{
    fit().setSamples({"x", "x", "x"});
    fit().giveRestTo({0});
    resize(600);
    const int first = width(0);
    m_table.setColumnWidth(1, width(1) - 20);
    EXPECT_EQ(width(0), first);
}

TEST_F(ColumnFitTest, LeavesTheWidthThatTheUserGave)
{
    fit().giveRestTo({1, 2});
    resize(600);
    m_table.setColumnWidth(1, 90);
    resize(900);
    m_model.setRecords({date + date});
    EXPECT_EQ(width(1), 90);
    expectThatAllFits();
}

TEST_F(ColumnFitTest, ScrollsWhereTheUserWantsAColumnThatWide)
{
    resize(600);
    m_table.setColumnWidth(0, 1000);
    QApplication::processEvents();
    EXPECT_EQ(width(0), 1000);
    EXPECT_GT(scrolled(), 0);
}

TEST_F(ColumnFitTest, NeverMakesAColumnThatTakesTheRestTooNarrowForItsSample)
{
    fit().setSamples({"", "sample"});
    fit().giveRestTo({1, 2});
    m_table.setColumnWidth(0, 580);
    resize(600);
    EXPECT_EQ(width(1), sampleWidth(m_table, QStringLiteral("sample")));
}

TEST_F(ColumnFitTest, FollowsTheFont)
{
    fit().setSamples({date});
    resize(900);
    QFont large = m_table.font();
    large.setPointSize(large.pointSize() * 3 / 2);
    m_table.setFont(large);
    EXPECT_EQ(width(0), sampleWidth(m_table, date));
    EXPECT_GT(width(0), m_table.fontMetrics().horizontalAdvance(date));
}

} // namespace
