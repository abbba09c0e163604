#include "window/KeptPlace.h"

#include <QStringListModel>
#include <QTableView>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

class KeptPlaceTest : public testing::Test
{
protected:
    KeptPlaceTest()
    {
        QStringList names;
        for (int row = 0; row < 100; ++row)
            names << QString::number(row);
        m_model.setStringList(names);
        m_table.setSelectionBehavior(QTableView::SelectRows);
        m_table.setModel(&m_model);
    }

    QString name(int row) const { return m_model.stringList().at(row); }
    QItemSelectionModel& selection() { return *m_table.selectionModel(); }
    void readAnew()
    {
        const KeptPlace place(m_table, [this](int row) { return name(row); });
        m_model.setStringList(m_model.stringList());
        ASSERT_FALSE(selection().hasSelection());
        place.restore();
    }

    QStringListModel m_model;
    QTableView m_table;
};

TEST_F(KeptPlaceTest, SelectsNeighbouringRowsAsOneRange)
{
    m_table.selectAll();
    readAnew();
    EXPECT_EQ(selection().selectedRows().size(), 100);
    EXPECT_EQ(selection().selection().size(), 1);
}

TEST_F(KeptPlaceTest, LeavesTheRowsBetweenRangesAlone)
{
    for (const int row : {0, 3, 4, 99})
        selection().select(m_model.index(row, 0), QItemSelectionModel::Select);
    readAnew();
    QStringList selected;
    for (const QModelIndex& index : selection().selectedRows())
        selected << index.data().toString();
    std::sort(selected.begin(), selected.end());
    EXPECT_EQ(selected, QStringList({"0", "3", "4", "99"}));
    EXPECT_EQ(selection().selection().size(), 3);
}

} // namespace
