#include "window/ViewLook.h"
#include "tests/support/WaitFor.h"

#include <QApplication>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

class ColumnBalancerTest : public testing::Test
{
protected:
    ColumnBalancerTest()
    {
        m_table.setModel(&m_model);
        arrangeTable(m_table);
        m_table.setColumnWidth(0, 100);
        new ColumnBalancer(&m_table, 1, QStringLiteral("sample"));
        m_table.show();
    }

    void resize(int width)
    {
        m_table.resize(width, 200);
        ASSERT_TRUE(waitForExposed(&m_table));
        QApplication::processEvents();
    }

    int rest() const { return m_table.viewport()->width() - m_table.columnWidth(0); }

    QStandardItemModel m_model{1, 3};
    QTableView m_table;
};

TEST_F(ColumnBalancerTest, SharesEvenlyAtEverySize)
{
    for (const int width : {600, 900, 700}) {
        resize(width);
        EXPECT_EQ(m_table.columnWidth(1), rest() / 2) << width;
        EXPECT_EQ(m_table.columnWidth(2), rest() - rest() / 2) << width;
    }
}

TEST_F(ColumnBalancerTest, SharesAnewWhenAnotherColumnIsDragged)
{
    resize(600);
    m_table.setColumnWidth(0, 200);
    EXPECT_EQ(m_table.columnWidth(1), rest() / 2);
}

TEST_F(ColumnBalancerTest, LeavesTheWidthThatTheUserGave)
{
    resize(600);
    m_table.setColumnWidth(1, 90);
    resize(900);
    EXPECT_EQ(m_table.columnWidth(1), 90);
}

TEST_F(ColumnBalancerTest, NeverMakesTheColumnTooNarrowForTheSample)
{
    m_table.setColumnWidth(0, 580);
    resize(600);
    EXPECT_EQ(m_table.columnWidth(1), sampleWidth(m_table, QStringLiteral("sample")));
}

TEST(TableLook, FitsColumnsToTheirSamples)
{
    QStandardItemModel model(1, 3);
    QTableView table;
    table.setModel(&model);
    const int untouched = table.columnWidth(2);
    const QString sample = QStringLiteral("2000-00-00 00:00:00");
    fitColumns(table, {sample, QStringLiteral("x")});
    EXPECT_GT(table.columnWidth(0), table.fontMetrics().horizontalAdvance(sample));
    EXPECT_LT(table.columnWidth(1), table.columnWidth(0));
    EXPECT_EQ(table.columnWidth(2), untouched);
}

TEST(TableLook, FitsColumnsToWhatTheyHold)
{
    QStandardItemModel model(1, 3);
    QTableView table;
    table.setModel(&model);
    const QString text = QString(40, QLatin1Char('w'));
    model.setItem(0, 0, new QStandardItem(text));
    const int last = table.columnWidth(2);
    fitColumnsToContents(table);
    EXPECT_GT(table.columnWidth(0), table.fontMetrics().horizontalAdvance(text));
    EXPECT_LT(table.columnWidth(1), table.columnWidth(0));
    EXPECT_LE(table.columnWidth(2), last);
}

TEST(TableLook, SelectsWholeRowsAndLetsTabOut)
{
    QStandardItemModel model(2, 2);
    QTableView table;
    table.setModel(&model);
    arrangeTable(table);
    table.setCurrentIndex(model.index(1, 0));
    EXPECT_EQ(table.selectionModel()->selectedIndexes().size(), 2);
    EXPECT_FALSE(table.tabKeyNavigation());
    EXPECT_FALSE(table.wordWrap());
    EXPECT_TRUE(table.horizontalHeader()->stretchLastSection());
}

TEST(TabLook, AlignsThePagesWithWhatStandsAroundTheTabs)
{
    QTabWidget tabs;
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(9, 8, 7, 6);
    tabs.addTab(page, "One");
    tabs.addTab(new QWidget, "Without a layout");
    arrangeTabs(tabs);
    EXPECT_TRUE(tabs.documentMode());
    EXPECT_EQ(layout->contentsMargins(), QMargins(0, 8, 0, 0));
}

} // namespace
