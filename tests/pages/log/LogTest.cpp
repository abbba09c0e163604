#include "app/ApplicationLog.h"
#include "inspection/log/LogReader.h"
#include "pages/log/LogFilter.h"
#include "pages/log/LogPage.h"
#include "pages/log/LogTable.h"
#include "tests/pages/ShownToolTip.h"
#include "tests/support/WaitFor.h"
#include "window/BusyOverlay.h"
#include "window/TableCopyJob.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using Level = LogEntry::Level;

constexpr int levelColumn = 1;
constexpr int textColumn = 2;

class LogTableTest : public testing::Test
{
protected:
    LogTableTest()
        : m_path(m_folder.filePath("x.log")),
          m_reader(m_path, [this](LogPiece piece) { m_model.add(std::move(piece)); })
    {
    }

    void write(const QByteArray& lines, QIODevice::OpenMode mode = QIODevice::Append)
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(mode));
        file.write(lines);
        file.close();
        while (m_reader.readMore()) {
        }
    }

    QTemporaryDir m_folder;
    QString m_path;
    LogTable m_model;
    LogReader m_reader;
};

const QByteArray info = "[INFO] 2026-03-07 09:05:03 : text\n";
const QByteArray error = "[ERROR] 2026-03-07 09:05:03 : fault\n";

TEST_F(LogTableTest, GrowsWithTheFile)
{
    EXPECT_FALSE(m_reader.readMore());
    write(info);
    EXPECT_EQ(m_model.rowCount(), 1);
    write(error + info);
    EXPECT_EQ(m_model.rowCount(), 3);
    EXPECT_EQ(m_model.index(1, textColumn).data().toString().toStdString(), "fault");
    EXPECT_EQ(m_model.index(1, levelColumn).data().toString().toStdString(), "Error");
}

TEST_F(LogTableTest, ShowsMarkupInItsToolTipAsItStands)
{
    write("[INFO] 2026-03-07 09:05:03 : <b>bold</b>\n");
    const QModelIndex index = m_model.index(0, textColumn);
    EXPECT_EQ(shownToolTip(index.data(Qt::ToolTipRole).toString()).toStdString(), "<b>bold</b>");
}

TEST_F(LogTableTest, StartsAnewWithAFileThatBecameShorter)
{
    write(info + info + error);
    write(error, QIODevice::WriteOnly);
    EXPECT_EQ(m_model.rowCount(), 1);
    EXPECT_EQ(m_model.index(0, textColumn).data().toString().toStdString(), "fault");
}

// A view lays out all it is given, and a tool tip too.
TEST_F(LogTableTest, ShowsTheBeginningOfALongEntry)
{
    const QByteArray prefix = "[INFO] 2026-03-07 09:05:03 : ";
    const struct
    {
        QByteArray text;
        int shown;
    } rows[] = {
        // each shorter than the one before: the file is read from its start
        {QByteArray(4 << 20, 'x') + "needle", 1001},
        {QByteArray("one\n").repeated(40000) + "needle", 1001},
        {QByteArray(999, 'x') + "\xF0\x9F\x9A\xA2 and more", 1000}, // a pair is not cut in two
        {QByteArray(1001, 'x'), 1001},
        {QByteArray(1000, 'x'), 1000},
    };
    for (const auto& row : rows) {
        write(prefix + row.text + '\n', QIODevice::WriteOnly);
        ASSERT_EQ(m_model.rowCount(), 1);
        const QModelIndex index = m_model.index(0, textColumn);
        const bool cut = row.text.size() > 1000;
        const QString shown = index.data().toString();
        EXPECT_EQ(shown.size(), row.shown);
        EXPECT_EQ(shown.endsWith(QChar(0x2026)), cut);
        EXPECT_EQ(QString(shown).replace(QChar(0x21B5), '\n'), index.data(Qt::ToolTipRole));
        EXPECT_TRUE(m_model.record(0).line == prefix + row.text);
        LogFilter filter(m_model);
        filter.setText("needle");
        EXPECT_EQ(filter.rowCount(), row.text.endsWith("needle") ? 1 : 0);
    }
}

TEST_F(LogTableTest, FiltersByLevelAndText)
{
    write("2026-03-07 09:05:01 : === Start logging ===\n[DEBUG] 2026-03-07 09:05:03 : d\n" + info +
          "[WARNING] 2026-03-07 09:05:03 : w\n" + error);
    LogFilter filter(m_model);
    const struct
    {
        Level level;
        int rows;
    } rows[] = {{Level::Debug, 5}, {Level::Info, 3}, {Level::Warning, 2}, {Level::Error, 1}};
    for (const auto& row : rows) {
        filter.setLowest(row.level);
        EXPECT_EQ(filter.rowCount(), row.rows) << static_cast<int>(row.level);
    }
    filter.setLowest(Level::Debug);
    filter.setText("FAULT");
    EXPECT_EQ(filter.rowCount(), 1);
}

TEST_F(LogTableTest, IsSortedByLevelBehindItsFilter)
{
    LogFilter filter(m_model);
    write(error + info + error);
    filter.sort(levelColumn);
    EXPECT_TRUE(becomes([&] { return filter.index(0, textColumn).data().toString(); }, "text"));
    EXPECT_EQ(filter.entry(0).text, "text");
    filter.setText("fault");
    EXPECT_EQ(filter.rowCount(), 2);
    filter.setText({});
    filter.sort(-1);
    EXPECT_EQ(filter.entry(0).text, "fault");
}

// The first line stands last in this order.
TEST_F(LogTableTest, AppendsAFurtherLineToTheLastEntryInWhateverRowItStands)
{
    write(error + info);
    m_model.sort(levelColumn);
    EXPECT_TRUE(becomes([this] { return m_model.record(0).text; }, "text"));
    write("more\n");
    EXPECT_EQ(m_model.records().back().text, "text\nmore");
    EXPECT_EQ(m_model.record(0).text, "text\nmore");
    EXPECT_EQ(m_model.record(1).text, "fault");
}

TEST_F(LogTableTest, GivesAllOfALongMessageToBeCopied)
{
    const QByteArray message(2000, 'x');
    write("[INFO] 2026-03-07 09:05:03 : " + message + "\nmore\n");
    const QModelIndex index = m_model.index(0, textColumn);
    EXPECT_EQ(index.data(TableCopyJob::wholeTextRole).toString(), QString(message + "\nmore"));
}

class LogPageTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { logInfo("before"); } // the first line marks the run's start

    LogPageTest()
    {
        m_page.resize(700, 300);
        m_page.show();
        EXPECT_TRUE(waitFor([this] { return !m_page.isBusy(); }));
    }

    QTableView& table() { return *m_page.findChild<QTableView*>(); }
    QString lastLine()
    {
        const QAbstractItemModel* model = table().model();
        return model->index(model->rowCount() - 1, textColumn).data().toString();
    }

    QTemporaryDir m_folder;
    LogPage m_page;
};

TEST_F(LogPageTest, ShowsANewLineAtOnce)
{
    const int before = table().model()->rowCount();
    ApplicationLog::instance().write(Logger::warning, "something new");
    EXPECT_EQ(table().model()->rowCount(), before + 1);
    EXPECT_EQ(lastLine().toStdString(), "something new");
}

TEST_F(LogPageTest, ShowsALineThatAnotherProcessHasWritten)
{
    QFile log(ApplicationLog::path());
    ASSERT_TRUE(log.open(QIODevice::Append));
    log.write("[INFO] 2026-03-07 09:05:03 : from elsewhere\n");
    log.close();
    EXPECT_TRUE(waitFor([this] { return lastLine() == "from elsewhere"; }));
}

TEST_F(LogPageTest, TellsWhenItWasRead)
{
    const QLabel* read = nullptr;
    for (const QLabel* label : m_page.findChildren<QLabel*>())
        read = label->text().startsWith("Read at ") ? label : read;
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->isVisible());
}

// The names of files that messages tell of may hold line ends.
TEST_F(LogPageTest, ALineEndInAMessageMakesNoFurtherEntry)
{
    const char* const endings[] = {"\n", "\r", "\r\n"};
    for (const QString ending : endings) {
        const int before = table().model()->rowCount();
        logInfo("one" + ending + "two" + ending + "[ERROR] 2026-01-01 00:00:00 : forged" + ending);
        EXPECT_EQ(table().model()->rowCount(), before + 1);
        EXPECT_EQ(lastLine().toStdString(),
                  "one\u21B5two\u21B5[ERROR] 2026-01-01 00:00:00 : forged\u21B5");
    }
}

TEST_F(LogPageTest, FollowsNewLinesOnlyFromTheEnd)
{
    for (int i = 0; i < 60; ++i)
        logInfo(QString::number(i));
    QScrollBar* bar = table().verticalScrollBar();
    ASSERT_TRUE(waitFor([bar] { return bar->maximum() > 3; }));
    EXPECT_EQ(bar->value(), bar->maximum());
    bar->setValue(3);
    logInfo("later");
    EXPECT_EQ(bar->value(), 3);
}

TEST_F(LogPageTest, FiltersByTheChosenLevel)
{
    logInfo("harmless");
    ApplicationLog::instance().write(Logger::error, "serious");
    m_page.findChild<QComboBox*>()->setCurrentIndex(3);
    EXPECT_EQ(lastLine().toStdString(), "serious");
    logInfo("harmless too");
    EXPECT_EQ(lastLine().toStdString(), "serious");
}

TEST_F(LogPageTest, FindFiltersByText)
{
    logInfo("needle 4711");
    logInfo("hay");
    m_page.find();
    auto* field = m_page.findChild<QLineEdit*>();
    EXPECT_EQ(m_page.window()->focusWidget(), field);
    QTest::keyClicks(field, "4711");
    EXPECT_EQ(table().model()->rowCount(), 1);
}

TEST_F(LogPageTest, SavesTheLinesInView)
{
    ApplicationLog::instance().write(Logger::error, "to be saved");
    m_page.findChild<QLineEdit*>()->setText("to be saved");
    const QString path = m_folder.filePath("saved.log");
    m_page.saveAs(path);
    ASSERT_TRUE(waitForJob(m_page));
    QFile saved(path);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    const QByteArray lines = saved.readAll();
    EXPECT_TRUE(lines.startsWith("[ERROR] "));
    EXPECT_TRUE(lines.endsWith(" : to be saved\n"));
    EXPECT_TRUE(m_page.statusText().startsWith("Saved to"));
}

TEST_F(LogPageTest, LeavesTheTargetAloneWhenSavingIsCancelled)
{
    QFile log(ApplicationLog::path());
    const qint64 size = log.size();
    ASSERT_TRUE(log.open(QIODevice::Append));
    log.write(info.repeated(100000)); // far more than one slice saves
    log.close();
    m_page.refresh();
    ASSERT_TRUE(waitFor([this] { return !m_page.isBusy(); }));
    QFile target(m_folder.filePath("saved.log"));
    ASSERT_TRUE(target.open(QIODevice::ReadWrite));
    target.write("older\n");
    target.close();
    m_page.saveAs(target.fileName());
    ASSERT_TRUE(m_page.isBusy());
    m_page.findChild<BusyOverlay*>()->findChild<QPushButton*>()->click();
    EXPECT_FALSE(m_page.isBusy());
    EXPECT_EQ(m_page.statusText(), "Nothing was saved.");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList("saved.log"));
    ASSERT_TRUE(target.open(QIODevice::ReadOnly));
    EXPECT_EQ(target.readAll(), "older\n");
    ASSERT_TRUE(log.resize(size)); // the other tests need none of it
}

TEST_F(LogPageTest, RefusesToBeSavedOverItself)
{
    const QString link = m_folder.filePath("link.log");
    ASSERT_TRUE(QFile::link(ApplicationLog::path(), link));
    for (const QString& path : {ApplicationLog::path(), link}) {
        m_page.findChild<QLineEdit*>()->setText("no such line");
        m_page.saveAs(path);
        EXPECT_TRUE(m_page.statusText().endsWith("this is the log itself."))
            << m_page.statusText().toStdString();
        m_page.findChild<QLineEdit*>()->clear();
        logInfo("later");
        EXPECT_EQ(lastLine().toStdString(), "later");
    }
}

TEST(LogPage, SaysThatTheLogCannotBeWritten)
{
    ApplicationLog::instance(); // the tests' own
    const QByteArray state = qgetenv("XDG_STATE_HOME");
    const QTemporaryDir folder;
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    qputenv("XDG_STATE_HOME", file.fileName().toLocal8Bit());
    const LogPage page;
    const std::string expected =
        "The log cannot be written to " + ApplicationLog::path().toStdString() + ".";
    qputenv("XDG_STATE_HOME", state);
    EXPECT_EQ(page.statusText().toStdString(), expected);
    const auto* hint = page.findChild<QTableView*>()->viewport()->findChild<QLabel*>();
    EXPECT_EQ(hint->text().toStdString(), expected);
}

TEST_F(LogPageTest, SaysThatAFileCannotBeWritten)
{
    m_page.saveAs(m_folder.filePath("missing/saved.log"));
    ASSERT_TRUE(waitForJob(m_page));
    EXPECT_TRUE(m_page.statusText().contains("could not be written"))
        << m_page.statusText().toStdString();
}

} // namespace
