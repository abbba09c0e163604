#include "window/RecordsModel.h"

#include "tests/pages/ShownToolTip.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace {

struct Ship
{
    QString name;
    int crates;
};

QVariant cratesLook(const Ship& ship, int role)
{
    if (role == Qt::ForegroundRole && ship.crates == 0)
        return QColor(Qt::red);
    if (role == Qt::ToolTipRole && ship.crates == 0)
        return QStringLiteral("empty");
    return {};
}

// One column of text alone, and one with a look.
std::vector<RecordColumn<Ship>> columns()
{
    return {{"Name", [](const Ship& ship) { return ship.name; }},
            {"Crates", [](const Ship& ship) { return QString::number(ship.crates); }, cratesLook,
             "Of <any> size"}};
}

class RecordsModelTest : public testing::Test
{
protected:
    RecordsModelTest()
        : m_model(columns()),
          m_tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        m_model.setRecords({{"Anna", 12}, {"<b>Bold", 0}});
    }

    QVariant data(int row, int column, int role = Qt::DisplayRole) const
    {
        return m_model.data(m_model.index(row, column), role);
    }
    std::string text(int row, int column) const
    {
        return data(row, column).toString().toStdString();
    }

    RecordsModel<Ship> m_model;
    QAbstractItemModelTester m_tester;
};

TEST_F(RecordsModelTest, HasARowForEachRecordAndAColumnForEachDescription)
{
    EXPECT_EQ(m_model.rowCount(), 2);
    EXPECT_EQ(m_model.columnCount(), 2);
    EXPECT_EQ(m_model.rowCount(m_model.index(0, 0)), 0);
    EXPECT_EQ(m_model.columnCount(m_model.index(0, 0)), 0);
}

TEST_F(RecordsModelTest, HeadsItsColumnsWithTheirTitles)
{
    EXPECT_EQ(m_model.headerData(0, Qt::Horizontal, Qt::DisplayRole), "Name");
    EXPECT_EQ(m_model.headerData(1, Qt::Horizontal, Qt::DisplayRole), "Crates");
    EXPECT_FALSE(m_model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    EXPECT_FALSE(m_model.headerData(0, Qt::Horizontal, Qt::DecorationRole).isValid());
    EXPECT_FALSE(m_model.headerData(2, Qt::Horizontal, Qt::DisplayRole).isValid());
    EXPECT_FALSE(m_model.headerData(-1, Qt::Horizontal, Qt::DisplayRole).isValid());
}

TEST_F(RecordsModelTest, ExplainsAColumnWhoseHeaderHasAToolTip)
{
    const QVariant tip = m_model.headerData(1, Qt::Horizontal, Qt::ToolTipRole);
    EXPECT_EQ(shownToolTip(tip.toString()), "Of <any> size");
    EXPECT_FALSE(m_model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

TEST_F(RecordsModelTest, ShowsTheTextsOfARecord)
{
    EXPECT_EQ(text(0, 0), "Anna");
    EXPECT_EQ(text(0, 1), "12");
    EXPECT_EQ(text(1, 0), "<b>Bold");
}

TEST_F(RecordsModelTest, HasTheTextAsTheToolTipAsItStands)
{
    EXPECT_EQ(data(0, 1, Qt::ToolTipRole).toString(), "12");
    EXPECT_EQ(shownToolTip(data(1, 0, Qt::ToolTipRole).toString()), "<b>Bold");
}

TEST_F(RecordsModelTest, PutsTheToolTipOfALookInItsPlace)
{
    EXPECT_EQ(data(1, 1, Qt::ToolTipRole).toString(), "empty");
}

TEST_F(RecordsModelTest, AsksTheLookForEveryOtherRole)
{
    EXPECT_EQ(data(1, 1, Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));
    EXPECT_FALSE(data(0, 1, Qt::ForegroundRole).isValid());
    EXPECT_FALSE(data(1, 0, Qt::ForegroundRole).isValid()) << "a column without a look";
}

TEST_F(RecordsModelTest, HasNothingForAnInvalidIndex)
{
    EXPECT_FALSE(m_model.data({}).isValid());
    EXPECT_FALSE(m_model.data(m_model.index(2, 0)).isValid());
    EXPECT_FALSE(m_model.data(m_model.index(0, 2)).isValid());
}

TEST_F(RecordsModelTest, ReplacesAllRecordsWithAReset)
{
    QSignalSpy resets(&m_model, &QAbstractItemModel::modelReset);
    m_model.setRecords({{"Clara", 3}});
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(m_model.rowCount(), 1);
    EXPECT_EQ(m_model.record(0).name, "Clara");
}

TEST_F(RecordsModelTest, AppendsRecordsAsInsertedRows)
{
    QSignalSpy insertions(&m_model, &QAbstractItemModel::rowsInserted);
    m_model.append({{"Clara", 3}, {"Dora", 4}});
    ASSERT_EQ(insertions.size(), 1);
    EXPECT_EQ(insertions[0][1].toInt(), 2);
    EXPECT_EQ(insertions[0][2].toInt(), 3);
    EXPECT_EQ(m_model.records().size(), 4U);
    EXPECT_EQ(text(3, 0), "Dora");
}

TEST_F(RecordsModelTest, AppendingNothingTellsNothing)
{
    QSignalSpy insertions(&m_model, &QAbstractItemModel::rowsInserted);
    m_model.append({});
    EXPECT_EQ(insertions.size(), 0);
    EXPECT_EQ(m_model.rowCount(), 2);
}

TEST_F(RecordsModelTest, TellsTheViewsOfTheWholeRowThatIsUpdated)
{
    QSignalSpy changes(&m_model, &QAbstractItemModel::dataChanged);
    m_model.update(1, [](Ship& ship) { ship.crates = 7; });
    EXPECT_EQ(text(1, 1), "7");
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex(), m_model.index(1, 0));
    EXPECT_EQ(changes[0][1].toModelIndex(), m_model.index(1, 1));
}

TEST_F(RecordsModelTest, TakesRecordsThatCanOnlyBeMoved)
{
    using Owned = std::unique_ptr<int>;
    const auto text = [](const Owned& owned) { return QString::number(*owned); };
    RecordsModel<Owned> model({{"Number", text}});
    std::vector<Owned> records;
    records.push_back(std::make_unique<int>(5));
    model.append(std::move(records));
    EXPECT_EQ(model.data(model.index(0, 0)).toString(), "5");
}

} // namespace
