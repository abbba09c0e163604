#include "window/ViewLook.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

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
