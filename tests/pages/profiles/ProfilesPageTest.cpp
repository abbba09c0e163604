#include "tests/pages/profiles/ProfilesPageFixture.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>

namespace {

TEST_F(ProfilesPageTest, ShowsEachLineWithItsMargin)
{
    open();
    ASSERT_EQ(model("lines").rowCount(), 7);
    EXPECT_EQ(row("lines", 0), QStringList({"1", "comment", "comment", "; by hand"}));
    EXPECT_EQ(row("lines", 1), QStringList({"2", "replaced", "header", "[Net]"}));
    EXPECT_EQ(row("lines", 2), QStringList({"3", "replaced", "kept", "Host=one"}));
    EXPECT_EQ(row("lines", 3), QStringList({"4", "two “=”", "kept", "Query=a=b"}));
    EXPECT_EQ(row("lines", 4), QStringList({"5", "blank", "blank", ""}));
    EXPECT_EQ(row("lines", 6), QStringList({"7", "kept", "kept", "Mask=255"}));
}

TEST_F(ProfilesPageTest, ShowsBothReadingsWithTheirDifferences)
{
    open();
    ASSERT_EQ(model("readings").rowCount(), 3);
    EXPECT_EQ(row("readings", 0), QStringList({"Net", "Host", "one", "≠", "(empty)"}));
    EXPECT_EQ(row("readings", 1), QStringList({"Net", "Query", "a=b", "≠", "(empty)"}));
    EXPECT_EQ(row("readings", 2), QStringList({"Net", "Mask", "255", "=", "255"}));
    EXPECT_EQ(status(), QStringLiteral("Values: 3. Read differently: 2."));
}

TEST_F(ProfilesPageTest, TellsWhatTheWideFamilyDoesNotFind)
{
    m_file.write("[General]\nSpeed=9600\n");
    open();
    ASSERT_EQ(model("readings").rowCount(), 2);
    EXPECT_EQ(row("readings", 0), QStringList({"(no name)", "Speed", "9600", "≠", "(empty)"}));
    EXPECT_EQ(row("readings", 1), QStringList({"General", "Speed", "(not found)", "≠", "9600"}));
}

TEST_F(ProfilesPageTest, ExplainsTheChosenLineAndChoosesItsReading)
{
    open();
    m_probe.control<QTableView>("lines").selectRow(3);
    EXPECT_TRUE(status().startsWith(QStringLiteral("Line 4. Narrow: Dropped: more than one")));
    EXPECT_EQ(m_probe.text("key"), QStringLiteral("Query"));
}

TEST_F(ProfilesPageTest, TellsWhyAListReadsEmpty)
{
    m_file.write("[S]\nServers=alpha, beta\n");
    open();
    EXPECT_EQ(row("lines", 1), QStringList({"2", "kept", "list", "Servers=alpha, beta"}));
    EXPECT_EQ(row("readings", 0), QStringList({"S", "Servers", "(empty)", "≠", "alpha, beta"}));
    m_probe.control<QTableView>("lines").selectRow(1);
    EXPECT_TRUE(status().endsWith(QStringLiteral(
        "Wide: Kept: the family finds this entry. A comma without quotes makes it a list, which "
        "reads as empty.")))
        << status().toStdString();
}

TEST_F(ProfilesPageTest, TellsWhyAValueIsCut)
{
    m_file.write("[S]\nTail=1 ; why\n");
    open();
    EXPECT_EQ(row("lines", 1), QStringList({"2", "kept", "cut at “;”", "Tail=1 ; why"}));
    EXPECT_EQ(row("readings", 0), QStringList({"S", "Tail", "1", "≠", "1 ; why"}));
}

TEST_F(ProfilesPageTest, ShowsWhatEscapesMakeOfAValue)
{
    m_file.write("[S]\nPath=C:\\new\\table\n");
    open();
    EXPECT_EQ(row("lines", 1), QStringList({"2", "kept", "escape", "Path=C:\\new\\table"}));
    EXPECT_EQ(row("readings", 0), QStringList({"S", "Path", "C:↵ew⇥able", "≠", "C:\\new\\table"}));
}

TEST_F(ProfilesPageTest, ShortensWhatNoCellHasRoomFor)
{
    const QByteArray fits = QByteArray(496, 'x');
    m_file.write("[S]\nfit=" + fits + "\nlong=" + QByteArray(100000, 'x') + "\n");
    open();
    EXPECT_EQ(row("lines", 1).last(), QLatin1String("fit=" + fits));
    EXPECT_EQ(row("lines", 2).last(), QStringLiteral("long=") + QString(495, 'x') + "…");
    EXPECT_EQ(row("readings", 1)[2], QString(500, 'x') + "…");
}

TEST_F(ProfilesPageTest, RefreshReadsTheFileAgain)
{
    open();
    m_file.write("[Net]\nMask=254\n");
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(row("readings", 0), QStringList({"Net", "Mask", "254", "=", "254"}));
}

TEST_F(ProfilesPageTest, RefreshKeepsTheChosenReadingWithItsLine)
{
    open();
    m_probe.control<QTableView>("readings").selectRow(2);
    m_file.write("[New]\na=1\n[Net]\nQuery=a=b\nMask=254\n");
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_probe.control<QTableView>("lines").currentIndex().row(), 4);
    EXPECT_EQ(m_probe.control<QTableView>("readings").currentIndex().row(), 2);
    EXPECT_EQ(m_probe.text("key"), QStringLiteral("Mask"));
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("254"));
    EXPECT_EQ(status(), QStringLiteral("Values: 3. Read differently: 1."));
}

TEST_F(ProfilesPageTest, RefreshKeepsAChosenLineThatHasNoReading)
{
    open();
    m_probe.control<QTableView>("lines").selectRow(4);
    m_file.write("; new\n[Net]\nHost=one\n\n\nMask=255\n");
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_probe.control<QTableView>("lines").currentIndex().row(), 4);
    EXPECT_FALSE(m_probe.control<QTableView>("readings").currentIndex().isValid());
}

TEST_F(ProfilesPageTest, RefreshKeepsWhatIsBeingTyped)
{
    open();
    m_probe.control<QTableView>("readings").selectRow(2);
    m_probe.control<QLineEdit>("value").selectAll();
    QTest::keyClicks(&m_probe.control<QLineEdit>("value"), QStringLiteral("7"));
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_probe.control<QTableView>("readings").currentIndex().row(), 2);
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("7"));
}

TEST_F(ProfilesPageTest, RefreshLetsGoOfAReadingThatIsGone)
{
    open();
    m_probe.control<QTableView>("lines").selectRow(6);
    m_file.write("[Other]\n\n\n\n\n\nk=v\n");
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    for (const char* view : {"lines", "readings"})
        EXPECT_FALSE(m_probe.control<QTableView>(view).currentIndex().isValid()) << view;
    for (const char* field : {"section", "key", "value"})
        EXPECT_EQ(m_probe.text(field), QString()) << field;
}

TEST_F(ProfilesPageTest, AnotherFileLetsGoOfTheReading)
{
    open();
    m_probe.control<QTableView>("readings").selectRow(2);
    open(m_file.folder() + QStringLiteral("/new.ini"));
    EXPECT_EQ(m_probe.text("section"), QString());
}

TEST_F(ProfilesPageTest, ChoosesWhatWasWritten)
{
    m_file.write("[Net]\nMask=255\n");
    open();
    m_probe.control<QTableView>("readings").selectRow(0);
    request(QStringLiteral("Net"), QStringLiteral("Query"), QStringLiteral("a=b"), wide);
    EXPECT_EQ(m_probe.control<QTableView>("readings").currentIndex().row(), 1);
    EXPECT_EQ(row("readings", 1)[1], QStringLiteral("Query"));
    EXPECT_EQ(m_probe.text("key"), QStringLiteral("Query"));
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("a=b"));
    EXPECT_TRUE(status().startsWith(QStringLiteral("Written;"))) << status().toStdString();
}

TEST_F(ProfilesPageTest, OpensADroppedFile)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_file.path())});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&m_probe.page(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&m_probe.page(), &drop);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(model("lines").rowCount(), 7);
}

TEST_F(ProfilesPageTest, TakesNoDropOfAnAddress)
{
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/a.ini"))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&m_probe.page(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(ProfilesPageTest, RefusesAFolderAndLeavesWhatIsTypedToBeMended)
{
    open();
    open(m_file.folder());
    EXPECT_TRUE(status().endsWith(QStringLiteral("is a folder.")));
    EXPECT_EQ(model("lines").rowCount(), 7);
    EXPECT_EQ(m_probe.text("file"), m_file.folder());
    EXPECT_TRUE(m_probe.control<QLabel>("form").text().startsWith(QStringLiteral("profile.ini. ")));
}

TEST_F(ProfilesPageTest, RefusesAFileInAMissingFolder)
{
    open(m_file.folder() + QStringLiteral("/none/a.ini"));
    EXPECT_TRUE(status().startsWith(QStringLiteral("There is no folder")));
}

TEST_F(ProfilesPageTest, F2PutsTheKeyboardOnTheValue)
{
    open();
    auto& readings = m_probe.control<QTableView>("readings");
    readings.setFocus();
    readings.selectRow(2);
    QTest::keyClick(&readings, Qt::Key_F2);
    EXPECT_TRUE(m_probe.control<QWidget>("value").hasFocus());
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("255"));
}

TEST_F(ProfilesPageTest, ShowsTheValueOfTheChosenFamily)
{
    open();
    m_probe.control<QTableView>("readings").selectRow(1);
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("a=b"));
    m_probe.control<QComboBox>("family").setCurrentIndex(narrow);
    EXPECT_EQ(m_probe.text("value"), QString());
}

} // namespace
