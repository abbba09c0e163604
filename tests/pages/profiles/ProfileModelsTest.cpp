#include "pages/profiles/DifferenceColumns.h"
#include "pages/profiles/ProfileLinesModel.h"
#include "pages/profiles/ProfileReadingsModel.h"

#include "inspection/profiles/ProfileLoadingJob.h"
#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/support/WaitFor.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

TEST(ProfileModels, HaveNothingToShowWhereThereIsNoCell)
{
    const ProfileLinesModel lines;
    const ProfileReadingsModel readings;
    for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::ForegroundRole}) {
        EXPECT_FALSE(lines.data({}, role).isValid());
        EXPECT_FALSE(readings.data({}, role).isValid());
    }
}

TEST(ProfileModels, ShowMarkupInToolTipsAsItStands)
{
    RecordsModel<ProfileReading> readings(ProfileColumns::ofReadings());
    readings.append({{QStringLiteral("S"), QStringLiteral("<b>key</b>"), {}, QStringLiteral("1")}});
    const auto tip = [&readings](int column) {
        return readings.index(0, column).data(Qt::ToolTipRole).toString().toStdString();
    };
    EXPECT_EQ(tip(ProfileColumns::KeyColumn), "<span>&lt;b&gt;key&lt;/b&gt;</span>");
    EXPECT_EQ(tip(ProfileColumns::SectionColumn), "S");
}

TEST(ProfileModels, GroupTheDigitsOfLineNumbers)
{
    ProfileDocument::Line line;
    line.number = 12345;
    const auto lines = ProfileColumns::ofLines();
    EXPECT_EQ(lines[ProfileColumns::NumberColumn].text(line), "12,345");
    DifferenceRow row;
    row.before = 12344;
    row.after = -1;
    const auto columns = DifferenceColumns::of(nullptr, {});
    EXPECT_EQ(columns[DifferenceColumns::BeforeColumn].text(row), "12,345");
    EXPECT_EQ(columns[DifferenceColumns::AfterColumn].text(row), "");
}

TEST(ProfileModels, SortTheLinesOfADifferenceByTheirNumbers)
{
    RecordsModel<DifferenceRow> model(DifferenceColumns::of(nullptr, {}));
    DifferenceRow tenth;
    tenth.before = 9;
    DifferenceRow ninth;
    ninth.before = 8;
    model.setRecords({tenth, ninth});
    model.sort(DifferenceColumns::BeforeColumn, Qt::AscendingOrder);
    EXPECT_TRUE(becomes([&model] { return model.record(0).before; }, 8));
}

// Three names, of which the first two are read differently.
class SortedReadings : public testing::Test
{
protected:
    SortedReadings() : m_tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        m_file.write("[S]\nb=1\nc=2\na=3\n");
        ProfileLoadingJob loading(m_file.path());
        while (loading.step()) {
        }
        m_model.setDocument(std::make_shared<const ProfileDocument>(std::move(loading.document())));
    }

    void read(int name, const char* wide, const char* narrow)
    {
        const auto [section, key] = m_model.document()->name(name);
        m_model.setReading(name, {section, key, QString(wide), QString(narrow), true});
    }
    QString keys() const
    {
        QString keys;
        for (int row = 0; row < m_model.rowCount(); ++row)
            keys += m_model.index(row, ProfileColumns::KeyColumn).data().toString();
        return keys;
    }

    ProfileFixture m_file;
    ProfileReadingsModel m_model;
    QAbstractItemModelTester m_tester;
};

TEST_F(SortedReadings, ComeInTheOrderOfTheFile)
{
    EXPECT_TRUE(becomes([this] { return keys(); }, "bca"));
}

TEST_F(SortedReadings, AreSortedByTheirKeys)
{
    m_model.sort(ProfileColumns::KeyColumn);
    EXPECT_TRUE(becomes([this] { return keys(); }, "abc"));
    EXPECT_EQ(m_model.nameAt(0), 2);
    EXPECT_EQ(m_model.rowOf(2), 0);
    m_model.sort(-1);
    EXPECT_TRUE(becomes([this] { return keys(); }, "bca"));
}

TEST_F(SortedReadings, ComeFirstWhereTheyHaveNotBeenRead)
{
    read(0, "y", "y");
    read(2, "x", "x");
    m_model.sort(ProfileColumns::WideColumn);
    EXPECT_TRUE(becomes([this] { return keys(); }, "cab"));
}

TEST_F(SortedReadings, AreSortedAmongTheDifferences)
{
    m_model.showOnlyDifferences(true);
    m_model.sort(ProfileColumns::KeyColumn, Qt::DescendingOrder);
    for (const int name : {0, 2, 1}) // the last one stands between the others in the file
        read(name, "1", "2");
    EXPECT_EQ(m_model.rowCount(), 3);
    EXPECT_TRUE(becomes([this] { return keys(); }, "cba"));
    EXPECT_EQ(m_model.rowOf(1), 0);
    m_model.showOnlyDifferences(false);
    EXPECT_TRUE(becomes([this] { return keys(); }, "cba"));
}

} // namespace
