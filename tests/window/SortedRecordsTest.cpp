#include "tests/support/WaitFor.h"
#include "window/RecordsModel.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QTest>

#include <gtest/gtest.h>

namespace {

struct Ship
{
    QString name;
    int crates;
};

std::vector<RecordColumn<Ship>> columns()
{
    using Column = RecordColumn<Ship>;
    return {Column("Name", [](const Ship& ship) { return ship.name; }),
            Column("Crates", [](const Ship& ship) {
                return QString::number(ship.crates);
            }).sortedBy([](const Ship& ship) { return SortKey::number(ship.crates); })};
}

class SortedRecordsTest : public testing::Test
{
protected:
    SortedRecordsTest() : m_tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        m_model.setRecords({{"Dora", 9}, {"anna", 100}, {"Clara", 10}});
    }

    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < m_model.rowCount(); ++row)
            names << m_model.index(row, 0).data().toString();
        return names;
    }

    testing::AssertionResult namesBecome(const QStringList& expected) const
    {
        return becomes([this] { return names(); }, expected);
    }

    RecordsModel<Ship> m_model{columns()};
    QAbstractItemModelTester m_tester;
};

TEST_F(SortedRecordsTest, KeepTheOrderInWhichTheyCame)
{
    EXPECT_TRUE(namesBecome({"Dora", "anna", "Clara"}));
}

TEST_F(SortedRecordsTest, AreSortedByText)
{
    m_model.sort(0);
    EXPECT_TRUE(namesBecome({"anna", "Clara", "Dora"}));
}

TEST_F(SortedRecordsTest, AreSortedByTheKeyOfTheirColumn)
{
    m_model.sort(1);
    EXPECT_TRUE(namesBecome({"Dora", "Clara", "anna"}));
    m_model.sort(1, Qt::DescendingOrder);
    EXPECT_TRUE(namesBecome({"anna", "Clara", "Dora"}));
}

TEST_F(SortedRecordsTest, ComeBackToTheirOrder)
{
    m_model.sort(0);
    ASSERT_TRUE(namesBecome({"anna", "Clara", "Dora"}));
    m_model.sort(-1);
    EXPECT_TRUE(namesBecome({"Dora", "anna", "Clara"}));
}

TEST_F(SortedRecordsTest, StandInTheRowsThatShowThem)
{
    m_model.sort(0);
    EXPECT_TRUE(becomes([this] { return m_model.record(2).name; }, "Dora"));
    EXPECT_EQ(m_model.recordAt(2), 0);
    EXPECT_EQ(m_model.rowOf(0), 2);
    EXPECT_EQ(m_model.records().front().name, "Dora");
    m_model.update(2, [](Ship& ship) { ship.name = "Emma"; });
    EXPECT_TRUE(namesBecome({"anna", "Clara", "Emma"}));
}

TEST_F(SortedRecordsTest, TakeIndexesWithThem)
{
    const QPersistentModelIndex dora = m_model.index(0, 1);
    m_model.sort(0);
    EXPECT_TRUE(becomes([&] { return dora.row(); }, 2));
    EXPECT_EQ(dora, m_model.index(2, 1));
    m_model.sort(-1);
    EXPECT_EQ(dora, m_model.index(0, 1));
}

TEST_F(SortedRecordsTest, AreSortedWhenTheyAreReplaced)
{
    m_model.sort(0);
    m_model.setRecords({{"Zoe", 1}, {"Berta", 2}});
    EXPECT_TRUE(namesBecome({"Berta", "Zoe"}));
}

TEST_F(SortedRecordsTest, AreSortedInAMomentAfterTheyWereAppended)
{
    m_model.sort(0);
    m_model.append({{"Berta", 1}});
    m_model.append({{"Emma", 1}});
    EXPECT_EQ(m_model.rowCount(), 5);
    EXPECT_TRUE(namesBecome({"anna", "Berta", "Clara", "Dora", "Emma"}));
}

TEST_F(SortedRecordsTest, AreAppendedAtTheEndWhereNothingIsSorted)
{
    m_model.append({{"Berta", 1}});
    EXPECT_EQ(names().last(), "Berta");
}

// More than is sorted before the window has to answer.
TEST_F(SortedRecordsTest, AreManyAndSortedOnTheEventLoop)
{
    std::vector<Ship> ships;
    for (int i = 0; i < 100000; ++i)
        ships.push_back({QStringLiteral("Ship %1").arg(i * 7919 % 100000, 6), 0});
    m_model.setRecords(std::move(ships));
    const QPersistentModelIndex chosen = m_model.index(4711, 0);
    const QString name = chosen.data().toString();
    m_model.sort(0);
    m_model.append({{"Ship      0a", 0}});
    ASSERT_TRUE(
        waitFor([this] { return m_model.index(1, 0).data().toString() == "Ship      0a"; }));
    EXPECT_EQ(m_model.index(100000, 0).data().toString(), "Ship  99999");
    EXPECT_EQ(chosen.data().toString(), name);
}

} // namespace
