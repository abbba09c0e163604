#include "tests/pages/profiles/ProfilesPageFixture.h"
#include "tests/support/WaitFor.h"

#include <QCheckBox>

namespace {

class ProfileDifferencesTest : public ProfilesPageTest
{
protected:
    QTableView& readings() const { return m_probe.control<QTableView>("readings"); }
    QTableView& lines() const { return m_probe.control<QTableView>("lines"); }
    void showOnlyDifferences(bool only) const
    {
        m_probe.control<QCheckBox>("onlyDifferences").setChecked(only);
        ASSERT_TRUE(m_probe.settle());
    }
};

TEST_F(ProfileDifferencesTest, AloneAreShownOnRequest)
{
    open();
    showOnlyDifferences(true);
    ASSERT_EQ(model("readings").rowCount(), 2);
    EXPECT_EQ(row("readings", 1), QStringList({"Net", "Query", "a=b", "≠", "(empty)"}));
    EXPECT_EQ(status(), QStringLiteral("Values: 3. Read differently: 2."));
    showOnlyDifferences(false);
    EXPECT_EQ(model("readings").rowCount(), 3);
}

TEST_F(ProfileDifferencesTest, ShownAloneStayChosen)
{
    open();
    readings().selectRow(1);
    m_file.write("[Net]\nMask=255\nHost=1\nQuery=a=b\n");
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(readings().currentIndex().row(), 2);
    showOnlyDifferences(true);
    EXPECT_EQ(readings().currentIndex().row(), 0);
    EXPECT_EQ(m_probe.text("key"), QStringLiteral("Query"));
    showOnlyDifferences(false);
    EXPECT_EQ(readings().currentIndex().row(), 2);
}

TEST_F(ProfileDifferencesTest, ShownAloneFollowTheFile)
{
    open();
    showOnlyDifferences(true);
    m_file.write("[Net]\nMask=255\nQuery=a=b\n");
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    ASSERT_EQ(model("readings").rowCount(), 1);
    EXPECT_EQ(row("readings", 0)[1], QStringLiteral("Query"));
}

TEST_F(ProfileDifferencesTest, AreNotShownAloneInAnotherFile)
{
    open();
    showOnlyDifferences(true);
    QFile other(m_file.folder() + QStringLiteral("/other.ini"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("[Other]\nk=v\n");
    other.close();
    open(other.fileName());
    EXPECT_FALSE(m_probe.control<QCheckBox>("onlyDifferences").isChecked());
    EXPECT_EQ(model("readings").rowCount(), 1);
}

TEST_F(ProfileDifferencesTest, AreGoneThroughByAKeyAndAround)
{
    m_file.write("[Net]\na=1=1\nb=1\nc=1=1\n");
    open();
    for (const int expected : {0, 2, 0}) {
        QTest::keyClick(&readings(), Qt::Key_F8);
        EXPECT_TRUE(becomes([this] { return readings().currentIndex().row(); }, expected));
    }
    m_probe.click("nextDifference");
    EXPECT_TRUE(becomes([this] { return m_probe.text("key"); }, QStringLiteral("c")));
}

TEST_F(ProfileDifferencesTest, AreLookedForAmongValuesThatHaveNotBeenAskedFor)
{
    QByteArray large = "[S]\n";
    for (int i = 0; i < 3000; ++i)
        large += "key" + QByteArray::number(i) + "=1\n";
    m_file.write(large + "last=a=b\n");
    open();
    m_probe.click("nextDifference");
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(readings().currentIndex().row(), 3000);
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("a=b"));
}

TEST_F(ProfileDifferencesTest, AreToldToBeNone)
{
    m_file.write("[Net]\nMask=255\n");
    open();
    QTest::keyClick(&readings(), Qt::Key_F8);
    EXPECT_TRUE(becomes([this] { return status(); },
                        QStringLiteral("The families read all values alike.")));
    EXPECT_FALSE(readings().currentIndex().isValid());
}

TEST_F(ProfileDifferencesTest, AChosenReadingMarksItsLine)
{
    open();
    readings().selectRow(1);
    EXPECT_EQ(lines().currentIndex().row(), 3);
    EXPECT_TRUE(status().startsWith(QStringLiteral("Line 4. "))) << status().toStdString();
    readings().selectRow(2);
    EXPECT_EQ(lines().currentIndex().row(), 6);
}

// Each family reads the value of another line.
TEST_F(ProfileDifferencesTest, ALineThatGivesTheReadingStaysChosen)
{
    m_file.write("[A]\nk=1\n[B]\nx=1\n[A]\nk=2=2\n[A]\nk=3\n;\n");
    open();
    lines().selectRow(7);
    EXPECT_EQ(m_probe.text("key"), QStringLiteral("k"));
    EXPECT_EQ(lines().currentIndex().row(), 7);
    EXPECT_EQ(readings().currentIndex().row(), 1);
}

} // namespace
