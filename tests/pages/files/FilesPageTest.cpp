#include "tests/pages/ShownToolTip.h"
#include "tests/pages/WindowProbe.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <fstream>

namespace {

class FilesPageTest : public testing::Test
{
protected:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    void makeFile(const QString& name, const QByteArray& contents = "12345") const
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    void search(const QString& pattern) const
    {
        m_probe.type("pattern", pattern);
        m_probe.click("search");
        ASSERT_TRUE(m_probe.settle());
    }

    // Whether a file exists is asked for in a pause of typing.
    void expectAnswer(const char* name, const QString& answer) const
    {
        EXPECT_TRUE(waitFor([&] { return m_probe.text(name) == answer; }))
            << m_probe.text(name).toStdString();
    }

    const QAbstractItemModel& model() const
    {
        return *m_probe.control<QTableView>("entries").model();
    }
    QString cell(int row, int column) const { return model().index(row, column).data().toString(); }

    QTemporaryDir m_folder;
    WindowProbe m_probe{"files"};
};

TEST_F(FilesPageTest, OpensWithTheKeyboardInThePattern)
{
    EXPECT_TRUE(m_probe.page().hasFocus() || m_probe.control<QWidget>("pattern").hasFocus());
    EXPECT_EQ(model().rowCount(), 0);
}

TEST_F(FilesPageTest, ListsTheRecordsOfAPattern)
{
    makeFile(QStringLiteral("a.txt"));
    makeFile(QStringLiteral("b.TXT"));
    makeFile(QStringLiteral("c.dat"));
    search(path("*.txt"));
    ASSERT_EQ(model().rowCount(), 2);
    EXPECT_EQ(cell(0, 0), QStringLiteral("a.txt"));
    EXPECT_EQ(cell(1, 0), QStringLiteral("b.TXT"));
    EXPECT_EQ(cell(0, 1), QStringLiteral("0x80 NORMAL"));
}

TEST_F(FilesPageTest, ShowsSizeAndTimesOfTheFirstRecordOnly)
{
    makeFile(QStringLiteral("a.txt"));
    makeFile(QStringLiteral("b.txt"));
    search(path("*"));
    EXPECT_EQ(cell(0, 2), QStringLiteral("5"));
    EXPECT_EQ(cell(0, 3).size(), 19);
    for (int column = 2; column < 6; ++column)
        EXPECT_EQ(cell(1, column), QStringLiteral("–"));
}

TEST_F(FilesPageTest, ShowsANameThatLooksLikeMarkupInItsToolTip)
{
    makeFile(QStringLiteral("<b>bold"));
    search(path("*"));
    EXPECT_EQ(shownToolTip(model().index(0, 0).data(Qt::ToolTipRole).toString()),
              QStringLiteral("<b>bold"));
}

TEST_F(FilesPageTest, HasNothingToSayOfNoEntry)
{
    EXPECT_FALSE(model().data({}, Qt::DisplayRole).isValid());
}

TEST_F(FilesPageTest, ShowsNoSizeForAFolderThatComesFirst)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("sub")));
    search(path("*"));
    EXPECT_EQ(cell(0, 1), QStringLiteral("0x10 DIRECTORY"));
    EXPECT_EQ(cell(0, 2), QStringLiteral("–"));
}

TEST_F(FilesPageTest, ListsMoreThanOneStepAsksFor)
{
    for (int i = 0; i < 1000; ++i)
        makeFile(QString::number(i));
    search(path("*"));
    EXPECT_EQ(model().rowCount(), 1000);
    EXPECT_EQ(m_probe.page().statusText().toStdString(),
              "1,000 found. Size and times are reported for the first one only, and only if it is "
              "a file; dwReserved0, dwReserved1 and cAlternateFileName never are.");
}

TEST_F(FilesPageTest, RefreshSearchesAgain)
{
    makeFile(QStringLiteral("a"));
    search(path("*"));
    makeFile(QStringLiteral("b"));
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(model().rowCount(), 2);
}

TEST_F(FilesPageTest, RefreshKeepsTheRowAndWhereTheTableIsScrolledTo)
{
    for (int i = 0; i < 200; ++i)
        makeFile(QString::number(1000 + i));
    search(path("*"));
    auto& table = m_probe.control<QTableView>("entries");
    table.selectRow(150);
    table.verticalScrollBar()->setValue(120);
    m_probe.type("path", QStringLiteral("/typed"));
    makeFile(QStringLiteral("0"));
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(model().rowCount(), 201);
    EXPECT_EQ(table.currentIndex().data().toString(), QStringLiteral("1150"));
    EXPECT_TRUE(table.selectionModel()->isRowSelected(151, {}));
    EXPECT_EQ(table.verticalScrollBar()->value(), 120);
    EXPECT_EQ(m_probe.text("path"), QStringLiteral("/typed"));
}

TEST_F(FilesPageTest, ReturnInThePatternSearches)
{
    makeFile(QStringLiteral("a"));
    m_probe.type("pattern", path("*"));
    QTest::keyClick(&m_probe.control<QWidget>("pattern"), Qt::Key_Return);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(model().rowCount(), 1);
}

TEST_F(FilesPageTest, RefusesAPatternWithoutAFolderAndKeepsTheRows)
{
    makeFile(QStringLiteral("a"));
    search(path("*"));
    for (const char* pattern : {"", "*.txt"}) {
        search(QLatin1String(pattern));
        EXPECT_EQ(model().rowCount(), 1) << pattern;
        EXPECT_FALSE(m_probe.page().statusText().contains(QLatin1String("found."))) << pattern;
    }
}

TEST_F(FilesPageTest, SaysThatNothingWasFound)
{
    search(path("none*"));
    EXPECT_EQ(model().rowCount(), 0);
    EXPECT_TRUE(m_probe.page().statusText().startsWith(QLatin1String("Nothing found")));
}

TEST_F(FilesPageTest, AnswersAboutAFile)
{
    makeFile(QStringLiteral("Data.tar.gz"));
    m_probe.type("from", m_folder.path());
    m_probe.type("path", path("data.TAR.GZ"));
    expectAnswer("exists", QStringLiteral("Yes: ") + path("Data.tar.gz"));
    EXPECT_EQ(m_probe.text("relative"), QStringLiteral("./data.TAR.GZ"));
    EXPECT_EQ(m_probe.text("extension"), QStringLiteral(".GZ"));
    EXPECT_EQ(m_probe.text("url"), QStringLiteral("No"));
}

TEST_F(FilesPageTest, AnswersAboutAFolder)
{
    m_probe.type("path", m_folder.path());
    EXPECT_EQ(m_probe.text("attributes"), QStringLiteral("0x90 DIRECTORY NORMAL"));
    expectAnswer("exists", QStringLiteral("Yes: ") + m_folder.path());
}

TEST_F(FilesPageTest, TellsThatMissingPathsHaveAttributesToo)
{
    m_probe.type("path", path("missing"));
    expectAnswer("exists", QStringLiteral("No"));
    EXPECT_EQ(m_probe.text("attributes"), QStringLiteral("0x80 NORMAL (path is missing)"));
}

TEST_F(FilesPageTest, AnswersAboutAUrl)
{
    m_probe.type("path", QStringLiteral("https://example.org/a"));
    EXPECT_EQ(m_probe.text("url"), QStringLiteral("Yes"));
}

TEST_F(FilesPageTest, ShowsTheTemporaryFolderWithoutAPath)
{
    EXPECT_EQ(m_probe.text("temporary"), QDir::tempPath() + QLatin1Char('/'));
    EXPECT_EQ(m_probe.text("exists"), QString());
}

TEST_F(FilesPageTest, AnswersAboutTheChosenRow)
{
    makeFile(QStringLiteral("a"));
    makeFile(QStringLiteral("b"));
    search(path("*"));
    m_probe.control<QTableView>("entries").selectRow(1);
    EXPECT_EQ(m_probe.text("path"), path("b"));
}

TEST_F(FilesPageTest, ShowsWhatIsCreatedMeanwhileAndKeepsTheChosenRow)
{
    makeFile(QStringLiteral("b"));
    makeFile(QStringLiteral("c"));
    search(path("*"));
    auto& table = m_probe.control<QTableView>("entries");
    table.selectRow(1);
    m_probe.type("path", QStringLiteral("/typed"));
    makeFile(QStringLiteral("a"));
    ASSERT_TRUE(waitFor([this] { return model().rowCount() == 3; }));
    EXPECT_EQ(table.currentIndex().data().toString(), QStringLiteral("c"));
    EXPECT_EQ(table.selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(m_probe.text("path"), QStringLiteral("/typed"));
    EXPECT_TRUE(m_probe.page().statusText().startsWith(QLatin1String("3 found.")));
    ASSERT_TRUE(QFile::remove(path("c")));
    ASSERT_TRUE(waitFor([this] { return model().rowCount() == 2; }));
}

TEST_F(FilesPageTest, ShowsTheSizeOfAFileThatIsWrittenMeanwhile)
{
    makeFile(QStringLiteral("a"));
    search(path("*"));
    makeFile(QStringLiteral("a"), "1234567");
    EXPECT_TRUE(waitFor([this] { return cell(0, 2) == QLatin1String("7"); }));
}

TEST_F(FilesPageTest, ReadsNothingAnewWhileNothingChanges)
{
    makeFile(QStringLiteral("a"));
    search(path("*"));
    QTest::qWait(600); // the time stamps are sure by then
    const QPersistentModelIndex kept = model().index(0, 0);
    QTest::qWait(1200);
    EXPECT_TRUE(kept.isValid()) << "the rows were replaced";
}

TEST_F(FilesPageTest, AnswersAnewAboutAPathThatIsCreatedMeanwhile)
{
    m_probe.type("path", path("late"));
    expectAnswer("exists", QStringLiteral("No"));
    makeFile(QStringLiteral("late"));
    expectAnswer("exists", QStringLiteral("Yes: ") + path("late"));
}

TEST_F(FilesPageTest, MarksRowsThatAnswerToAnotherPatternThanTheOneTyped)
{
    makeFile(QStringLiteral("a"));
    search(path("*"));
    const QModelIndex name = model().index(0, 0);
    EXPECT_FALSE(name.data(Qt::ForegroundRole).isValid());
    m_probe.type("pattern", path("b*"));
    EXPECT_TRUE(name.data(Qt::ForegroundRole).isValid());
    EXPECT_EQ(m_probe.page().statusText(),
              QStringLiteral("The rows are still those of %1: press Enter to search for the new "
                             "pattern.")
                  .arg(path("*")));
    m_probe.type("pattern", path("*"));
    EXPECT_FALSE(name.data(Qt::ForegroundRole).isValid());
    m_probe.type("pattern", path("b*"));
    search(path("a*"));
    EXPECT_FALSE(model().index(0, 0).data(Qt::ForegroundRole).isValid());
}

TEST_F(FilesPageTest, TellsAgainWhatWasFoundWhenItsPatternIsBack)
{
    makeFile(QStringLiteral("a"));
    search(path("*"));
    const QString found = m_probe.page().statusText();
    EXPECT_TRUE(found.startsWith(QLatin1String("1 found.")));
    m_probe.type("pattern", path("b*"));
    m_probe.type("pattern", path("*"));
    EXPECT_EQ(m_probe.page().statusText(), found);
}

TEST_F(FilesPageTest, RefreshTellsThatItsRowsAreNoAnswerToWhatIsTyped)
{
    makeFile(QStringLiteral("a"));
    search(path("*"));
    m_probe.type("pattern", path("b*"));
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_TRUE(m_probe.page().statusText().startsWith(QLatin1String("The rows are still those")))
        << m_probe.page().statusText().toStdString();
}

TEST_F(FilesPageTest, RefreshLeavesWhatIsTyped)
{
    makeFile(QStringLiteral("a"));
    search(path("*"));
    m_probe.type("pattern", path("b*"));
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_probe.text("pattern"), path("b*"));
    EXPECT_EQ(model().rowCount(), 1);
}

TEST_F(FilesPageTest, EntersAFolderByDoubleClickAndLeavesItByBackspace)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("one/two")));
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("zero")));
    search(path("*"));
    auto& table = m_probe.control<QTableView>("entries");
    const QPoint first = table.visualRect(model().index(0, 0)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, first);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, first);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_probe.text("pattern"), path("one/*"));
    ASSERT_EQ(model().rowCount(), 1);
    EXPECT_EQ(cell(0, 0), QStringLiteral("two"));
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Backspace);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_probe.text("pattern"), path("*"));
    EXPECT_EQ(table.currentIndex().data().toString(), QStringLiteral("one"));
}

TEST_F(FilesPageTest, TheTopFolderHasNoneAbove)
{
    search(QStringLiteral("/*"));
    auto& table = m_probe.control<QTableView>("entries");
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Backspace);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_probe.text("pattern"), QStringLiteral("/*"));
    EXPECT_GT(model().rowCount(), 0);
}

TEST_F(FilesPageTest, AFileIsNotEntered)
{
    makeFile(QStringLiteral("a"));
    search(path("*"));
    auto& table = m_probe.control<QTableView>("entries");
    table.selectRow(0);
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_EQ(m_probe.text("pattern"), path("*"));
}

TEST_F(FilesPageTest, TakesHomeQuotationMarksAndAddressesInThePattern)
{
    makeFile(QStringLiteral("a"));
    for (const QString& pattern :
         {QString(u'"' + path("*") + u'"'), QString(QStringLiteral("file://") + path("*"))}) {
        search(pattern);
        EXPECT_EQ(model().rowCount(), 1) << pattern.toStdString();
        EXPECT_EQ(m_probe.text("pattern"), pattern);
        search(path("none*"));
    }
    QFile file(QDir::home().filePath(QStringLiteral("at home.x")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    search(QStringLiteral("~/*.x"));
    EXPECT_EQ(cell(0, 0), QStringLiteral("at home.x"));
    file.remove();
}

TEST_F(FilesPageTest, ExplainsAWindowsPath)
{
    search(QStringLiteral("C:\\Users\\*"));
    EXPECT_EQ(m_probe.page().statusText().toStdString(),
              "The service finds nothing for C:\\Users\\*. The services know no drives, and a "
              "backslash is a character of a name to them: only / separates folders. With slashes "
              "it reads /Users/*.");
    EXPECT_EQ(m_probe.text("pattern"), QStringLiteral("C:\\Users\\*")) << "to be mended";
    m_probe.type("path", QStringLiteral("C:\\Users"));
    EXPECT_EQ(m_probe.control<QLabel>("note").text().toStdString(),
              "The services know no drives, and a backslash is a character of a name to them: only "
              "/ separates folders. AddBackslash makes C:/Users/ of it.");
}

TEST_F(FilesPageTest, SaysWhichPathItHasAskedAbout)
{
    makeFile(QStringLiteral("a"));
    m_probe.type("path", u'"' + path("a") + u'"');
    expectAnswer("exists", QStringLiteral("Yes: ") + path("a"));
    EXPECT_EQ(m_probe.control<QLabel>("note").toolTip(),
              QStringLiteral("Asked about %1.").arg(path("a")));
    m_probe.type("path", path("a"));
    EXPECT_FALSE(m_probe.control<QLabel>("note").isVisible());
}

TEST_F(FilesPageTest, AsksAboutAnAddressAsItIsTyped)
{
    makeFile(QStringLiteral("a"));
    m_probe.type("path", QStringLiteral("file://") + path("a"));
    EXPECT_EQ(m_probe.text("url"), QStringLiteral("Yes"));
    expectAnswer("exists", QStringLiteral("Yes: ") + path("a"));
}

TEST_F(FilesPageTest, SortsSizesByTheirNumber)
{
    for (const char* name : {"a", "b"})
        makeFile(QLatin1String(name), QByteArray(1234, 'x'));
    search(path("*"));
    m_probe.control<QTableView>("entries").model()->sort(2);
    // no size comes before every size
    EXPECT_TRUE(becomes([this] { return cell(0, 2); }, QStringLiteral("–")));
    EXPECT_EQ(cell(1, 2), QStringLiteral("1,234"));
}

// A very long extension comes back without a terminator.
TEST_F(FilesPageTest, ReadsAnUnterminatedExtensionNoFurtherThanItIsSure)
{
    m_probe.type("path", QStringLiteral("a.") + QString(400, QLatin1Char('x')));
    EXPECT_EQ(m_probe.text("extension").size(), 256);
}

TEST_F(FilesPageTest, TellsWhyTheFolderCannotBeRead)
{
    makeFile(QStringLiteral("file"));
    search(path("file/*"));
    EXPECT_EQ(m_probe.page().statusText(),
              QStringLiteral("Nothing found for %1. The folder cannot be opened: %2.")
                  .arg(path("file/*"), qt_error_string(ENOTDIR)));
    search(path("*.none"));
    EXPECT_EQ(m_probe.page().statusText(),
              QStringLiteral("Nothing found for %1.").arg(path("*.none")));
}

TEST_F(FilesPageTest, TellsOfNamesThatTheServiceLeavesOut)
{
    const QByteArray name = QFile::encodeName(m_folder.path()) + "/bad\xFF";
    const std::ofstream made(name.constData());
    const QString note = QStringLiteral("Names in the folder that are no text in the locale's "
                                        "encoding, and that the service leaves out: 1.");
    search(path("*"));
    EXPECT_EQ(model().rowCount(), 0);
    EXPECT_TRUE(m_probe.page().statusText().endsWith(note));
    makeFile(QStringLiteral("good"));
    search(path("*"));
    EXPECT_EQ(model().rowCount(), 1);
    EXPECT_TRUE(m_probe.page().statusText().endsWith(note));
    std::remove(name.constData()); // which the folder cannot do itself
}

} // namespace
