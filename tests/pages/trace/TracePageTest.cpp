#include "tests/pages/trace/TracePageFixture.h"

#include "tests/support/RandomRecording.h"
#include "window/BusyOverlay.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>

namespace {

using TracePageTest = TracePageFixture;

TEST_F(TracePageTest, ShowsEachCallInARow)
{
    take(usual().bytes() + ended());
    EXPECT_EQ(numbers(), QStringList({"1", "2", "3", "4", "5"}));
    EXPECT_EQ(column("calls", 1).first(), "libfoo.so+0x10");
    EXPECT_EQ(column("calls", 2).at(1), "RegQueryValueExW");
    EXPECT_TRUE(column("calls", 3)
                    .at(1)
                    .startsWith("key = 0x5581 [HKEY_CURRENT_USER\\Harbour], valueName = \"Size\""));
    EXPECT_EQ(column("calls", 4).at(1), "ERROR_SUCCESS");
    EXPECT_EQ(column("calls", 5).at(1), "2.0 us");
    EXPECT_EQ(status(), "Calls: 5.");
    EXPECT_EQ(part<QLineEdit>("file")->text(), path());
}

TEST_F(TracePageTest, MarksFailuresAndCallsThatNeverReturned)
{
    take(usual().bytes() + Made::begun(6, Made::close("0x1")));
    const auto mark = [this](int row) {
        return !model("calls").index(row, 4).data(Qt::DecorationRole).isNull();
    };
    EXPECT_FALSE(mark(0));
    EXPECT_TRUE(mark(2));
    EXPECT_TRUE(mark(5));
    EXPECT_EQ(column("calls", 4).last(), "never returned");
}

TEST_F(TracePageTest, SaysThatARecordingHasNoEnd)
{
    take(usual().bytes());
    EXPECT_NE(status().find("The recording has no end"), std::string::npos) << status();
}

TEST_F(TracePageTest, TellsLinesThatCannotBeRead)
{
    take(usual().bytes() + "{\"n\":\n" + ended());
    EXPECT_NE(status().find("Lines that cannot be read: 1."), std::string::npos) << status();
}

TEST_F(TracePageTest, KeepsTheOpenRecordingWhereAnotherCannotBeRead)
{
    take(usual().bytes() + ended());
    write("no recording\n", QIODevice::WriteOnly, "b.trace");
    for (const char* name : {"b.trace", "missing.trace", "bundle.qtrace"}) {
        page()->openFile(path(name));
        waitForJob();
        EXPECT_NE(status().find(name), std::string::npos) << status();
        EXPECT_EQ(numbers().size(), 5);
    }
    page()->openFile(m_folder.path());
    EXPECT_NE(status().find(" is no file."), std::string::npos) << status();
    page()->openFile({});
    EXPECT_EQ(status(), "Type the path of a file first.");
}

TEST_F(TracePageTest, OpensWhatIsTyped)
{
    write(usual().bytes());
    auto* file = part<QLineEdit>("file");
    file->setText('"' + path() + '"');
    QTest::keyClick(file, Qt::Key_Return);
    EXPECT_TRUE(becomes([this] { return numbers().size(); }, 5));
}

TEST_F(TracePageTest, ShowsAllOfTheChosenCallAndCopiesIt)
{
    take(usual().bytes());
    EXPECT_EQ(details(), "");
    choose("calls", 1);
    EXPECT_TRUE(details().startsWith("Call 2: RegQueryValueExW (register)\n"));
    EXPECT_TRUE(details().contains("data = <07000000> (4 bytes)"));
    press("Copy");
    EXPECT_EQ(QApplication::clipboard()->text(), details());
}

TEST_F(TracePageTest, CopiesAllOfACallThatIsTooLongToBeShown)
{
    take(Made().add(Made::query("HKEY_CURRENT_USER", "v", QByteArray(200000, 'a'))).bytes());
    choose("calls", 0);
    EXPECT_LT(details().size(), 30000);
    EXPECT_TRUE(details().contains("Here ends what is shown."));
    press("Copy");
    EXPECT_GT(QApplication::clipboard()->text().size(), 200000);
}

TEST_F(TracePageTest, FindsATextAsItIsTyped)
{
    take(usual().bytes());
    page()->find();
    EXPECT_EQ(m_window.focusWidget(), part<QLineEdit>("text"));
    QTest::keyClicks(part<QLineEdit>("text"), "colour");
    EXPECT_TRUE(becomes([this] { return numbers(); }, QStringList({"3"})));
    QTest::keyClick(part<QLineEdit>("text"), Qt::Key_Backspace);
    part<QLineEdit>("text")->clear();
    EXPECT_TRUE(becomes([this] { return numbers().size(); }, 5));
}

TEST_F(TracePageTest, ChoosesByLibraryManagerOperationAndFailure)
{
    Made::Call other = {"message", "messageBox", "{}", "7"};
    other.caller = "libbar.so+0x7";
    take(usual().add(other).bytes());
    const auto choose = [this](const char* box, const char* name) {
        part<QComboBox>(box)->setCurrentText(QLatin1String(name));
        EXPECT_EQ(part<QComboBox>(box)->currentText(), QLatin1String(name));
    };
    choose("library", "libbar.so");
    EXPECT_TRUE(becomes([this] { return numbers(); }, QStringList({"6"})));
    part<QComboBox>("library")->setCurrentIndex(0);
    choose("manager", "register");
    EXPECT_TRUE(becomes([this] { return numbers().size(); }, 5));
    choose("operation", "RegQueryValueExW");
    EXPECT_TRUE(becomes([this] { return numbers(); }, QStringList({"2", "3"})));
    part<QCheckBox>("failures")->click();
    EXPECT_TRUE(becomes([this] { return numbers(); }, QStringList({"3"})));
    EXPECT_EQ(part<QLabel>("count")->text(), "Calls: 1 of 6");
}

TEST_F(TracePageTest, KeepsTheChosenCallWhereItIsStillFound)
{
    take(usual().bytes());
    choose("calls", 2);
    part<QLineEdit>("text")->setText("RegQuery");
    EXPECT_TRUE(becomes([this] { return numbers().size(); }, 2));
    EXPECT_TRUE(details().startsWith("Call 3:"));
    EXPECT_EQ(part<QTableView>("calls")->currentIndex().row(), 1);
}

TEST_F(TracePageTest, FollowsARecordingThatIsWritten)
{
    take(usual().bytes());
    choose("calls", 1);
    write(Made::begun(6, Made::open("HKEY_CURRENT_USER", "Quay", "0x5582")), QIODevice::Append);
    ASSERT_TRUE(becomes([this] { return numbers().size(); }, 6));
    EXPECT_EQ(column("calls", 4).last(), "never returned");
    write(Made::line(6, Made::open("HKEY_CURRENT_USER", "Quay", "0x5582")) +
              Made::line(7, Made::close("0x5582")) + ended(),
          QIODevice::Append);
    ASSERT_TRUE(becomes([this] { return numbers().size(); }, 7));
    EXPECT_EQ(column("calls", 4).at(5), "ERROR_SUCCESS");
    EXPECT_TRUE(column("calls", 3).at(6).contains("HKEY_CURRENT_USER\\Quay"));
    EXPECT_TRUE(details().startsWith("Call 2:"));
    EXPECT_EQ(status(), "Calls: 7.");
}

TEST_F(TracePageTest, FollowsWithAFilter)
{
    take(usual().bytes());
    part<QCheckBox>("failures")->click();
    ASSERT_TRUE(becomes([this] { return numbers(); }, QStringList({"3", "5"})));
    write(Made::begun(6, Made::close("0x1")), QIODevice::Append);
    ASSERT_TRUE(becomes([this] { return numbers(); }, QStringList({"3", "5", "6"})));
    write(Made::line(6, Made::close("0x1")), QIODevice::Append); // returned, without a failure
    EXPECT_TRUE(becomes([this] { return numbers(); }, QStringList({"3", "5"})));
}

TEST_F(TracePageTest, OpensAnotherRecordingInThePlaceOfTheOneThatIsShown)
{
    take(usual().bytes());
    write(Made().add(Made::close("0x1")).bytes(), QIODevice::WriteOnly, "b.trace");
    ASSERT_EQ(std::rename(qPrintable(path("b.trace")), qPrintable(path())), 0);
    EXPECT_TRUE(becomes([this] { return numbers(); }, QStringList({"1"})));
}

TEST_F(TracePageTest, KeepsTheRecordingWhereReadingAnotherIsCancelled)
{
    take(usual().bytes());
    write(RandomRecording(1).make(300000), QIODevice::WriteOnly, "large.trace");
    page()->openFile(path("large.trace"));
    ASSERT_TRUE(page()->isBusy());
    page()->findChild<BusyOverlay*>()->findChild<QPushButton*>()->click();
    EXPECT_FALSE(page()->isBusy());
    EXPECT_EQ(status(), "Stopped before the recording was read.");
    EXPECT_EQ(numbers().size(), 5);
}

TEST_F(TracePageTest, SortsByDurationAsANumber)
{
    take(usual().bytes());
    part<QTableView>("calls")->model()->sort(5, Qt::DescendingOrder);
    EXPECT_TRUE(becomes([this] { return numbers(); }, QStringList({"5", "4", "3", "2", "1"})));
    choose("calls", 0);
    EXPECT_TRUE(details().startsWith("Call 5:"));
}

TEST_F(TracePageTest, CountsOperations)
{
    take(usual().bytes());
    chooseTab(1);
    EXPECT_EQ(column("operations", 0),
              QStringList({"RegOpenKeyExW", "RegQueryValueExW", "RegCloseKey"}));
    EXPECT_EQ(column("operations", 2), QStringList({"2", "2", "1"}));
    EXPECT_EQ(column("operations", 3), QStringList({"1", "1", "0"}));
    EXPECT_EQ(column("operations", 5), QStringList({"6.0 us", "5.0 us", "4.0 us"}));
}

TEST_F(TracePageTest, ListsWhatWasNeverGivenBack)
{
    take(usual().add(Made::open("HKEY_CURRENT_USER", "Quay", "0x9")).bytes() + ended());
    chooseTab(2);
    EXPECT_EQ(column("leaks", 0), QStringList({"Key"}));
    EXPECT_EQ(column("leaks", 1), QStringList({"HKEY_CURRENT_USER\\Quay"}));
    EXPECT_EQ(column("leaks", 3), QStringList({"6"}));
}

TEST_F(TracePageTest, ListsWhatWasAskedForAndAbsent)
{
    take(usual().bytes());
    chooseTab(3);
    EXPECT_EQ(column("asked", 1),
              QStringList({"HKEY_CURRENT_USER\\Harbour", "HKEY_CURRENT_USER\\Nowhere"}));
    EXPECT_EQ(column("asked", 2), QStringList({"Colour", ""}));
    part<QCheckBox>("withPresent")->click();
    EXPECT_EQ(column("asked", 1).size(), 4);
}

TEST_F(TracePageTest, FindComesBackToTheCalls)
{
    chooseTab(2);
    page()->find();
    EXPECT_TRUE(part<QTableView>("calls")->isVisible());
}

} // namespace
