#include "tests/inspection/registry/RegistryTest.h"
#include "tests/pages/WindowProbe.h"

#include "host/HostLibraries.h"
#include "pages/registry/FindPane.h"
#include "pages/registry/RegistryPage.h"
#include "pages/registry/RegistryTransfer.h"
#include "tests/support/WaitFor.h"
#include "window/BusyOverlay.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int many = 20000;

// Jobs of the real pages, ended by the overlay's Cancel button.
class CancelledJobs : public RegistryTest
{
protected:
    static void fill(int values)
    {
        for (int i = 0; i < values; ++i)
            store(QStringLiteral("A/value %1").arg(i), "5$some text");
    }
    static int storedValues() { return g_globalSettings->allKeys().size(); }

    static BusyOverlay& overlay(const WindowProbe& probe)
    {
        return *probe.page().findChild<BusyOverlay*>();
    }
    static void press(QWidget& place, const QString& caption)
    {
        for (QPushButton* button : place.findChildren<QPushButton*>()) {
            if (button->text() == caption && button->isVisible()) {
                button->click();
                return;
            }
        }
        FAIL() << "no button " << caption.toStdString();
    }
    static void cancel(const WindowProbe& probe)
    {
        ASSERT_TRUE(probe.page().isBusy());
        ASSERT_TRUE(overlay(probe).isVisible());
        press(overlay(probe), "Cancel");
        EXPECT_FALSE(probe.page().isBusy());
        EXPECT_FALSE(overlay(probe).isVisible());
    }
    // Turn by turn of the event loop, in each of which the job does one slice: a wait that looks at
    // the clock may find the job at its end.
    static void waitForProgress(const WindowProbe& probe, const QString& pattern)
    {
        const QRegularExpression expression(pattern);
        const auto isTold = [&] {
            const auto labels = overlay(probe).findChildren<QLabel*>();
            return std::any_of(labels.begin(), labels.end(), [&expression](const QLabel* label) {
                return expression.match(label->text()).hasMatch();
            });
        };
        while (probe.page().isBusy() && !isTold())
            QApplication::processEvents();
        EXPECT_TRUE(isTold());
    }
    static QString status(const WindowProbe& probe) { return probe.page().statusText(); }
    // The number that the status tells behind (or before) these words.
    static int told(const WindowProbe& probe, const QString& pattern)
    {
        const auto match = QRegularExpression(pattern).match(status(probe));
        EXPECT_TRUE(match.hasMatch()) << status(probe).toStdString();
        return QLocale().toInt(match.captured(1));
    }
    static const QAbstractItemModel& model(const WindowProbe& probe, const char* view)
    {
        return *probe.control<QTableView>(view).model();
    }
    static void openKey(const WindowProbe& probe)
    {
        ASSERT_TRUE(waitFor(
            [&probe] { return !probe.text("address").isEmpty(); })); // the store has been read
        probe.type("address", "HKEY_CURRENT_USER\\A");
        QTest::keyClick(&probe.control<QWidget>("address"), Qt::Key_Return);
    }
    void beginImport(const WindowProbe& probe, int values) const
    {
        QFile file(m_folder.filePath("in.reg"));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n");
        for (int i = 0; i < values; ++i)
            file.write("\"v" + QByteArray::number(i) + "\"=dword:00000001\r\n");
        file.close();
        ASSERT_TRUE(waitFor([&probe] { return !probe.text("address").isEmpty(); }));
        probe.page().findChild<RegistryTransfer*>()->importFile(file.fileName());
    }
    static void removeKey(const WindowProbe& probe)
    {
        auto& tree = probe.control<QTreeView>("keys");
        tree.setFocus();
        QTest::keyClick(&tree, Qt::Key_Delete);
    }
    static void confirm(const QString& caption)
    {
        ASSERT_TRUE(waitFor([] { return QApplication::activeModalWidget() != nullptr; }));
        press(*QApplication::activeModalWidget(), caption);
    }

    QTemporaryDir m_folder;
};

TEST_F(CancelledJobs, ASearchTellsItsProgressAndKeepsWhatItHasFound)
{
    const int values = 2 * many; // a search is fast
    fill(values);
    const WindowProbe probe("registry");
    openKey(probe);
    probe.page().find();
    auto& pane = *probe.page().findChild<FindPane*>();
    pane.findChild<QLineEdit*>()->setText("value 1000");
    press(pane, "Find no&w");
    ASSERT_TRUE(probe.page().isBusy());
    waitForProgress(probe, "^Values: [\\d,]+. Found: [1-9]");
    cancel(probe);
    const int found = told(probe, "The search was cancelled. Found so far: ([\\d,]+)");
    EXPECT_GT(found, 0);
    EXPECT_EQ(model(probe, "found").rowCount(), found);
    EXPECT_EQ(storedValues(), values);
    // The next one is whole.
    pane.findChild<QLineEdit*>()->setText("value 3999");
    press(pane, "Find no&w");
    ASSERT_TRUE(probe.settle());
    EXPECT_EQ(model(probe, "found").rowCount(), 11); // 3999, 39990 to 39999
}

TEST_F(CancelledJobs, ADeletionLeavesTheRestAndShowsIt)
{
    fill(many);
    const WindowProbe probe("registry");
    openKey(probe);
    auto& table = probe.control<QTableView>("values");
    ASSERT_EQ(table.model()->rowCount(), many);
    table.setFocus();
    table.selectAll();
    press(probe.page(), "Dele&te");
    confirm("Delete");
    waitForProgress(probe, "^[\\d,]{2,}$");
    cancel(probe);
    const int deleted = told(probe, ": ([\\d,]+) values");
    EXPECT_GT(deleted, 0);
    EXPECT_LT(deleted, many);
    EXPECT_EQ(storedValues(), many - deleted);
    EXPECT_EQ(model(probe, "values").rowCount(), many - deleted);
}

TEST_F(CancelledJobs, CountingWhatGoesWithAKeyDeletesNothing)
{
    constexpr int more = 2 * many; // listing them takes longer than the first slice
    fill(more);
    const WindowProbe probe("registry");
    openKey(probe);
    removeKey(probe);
    cancel(probe);
    EXPECT_EQ(status(probe), "Cancelled: nothing was deleted.");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(storedValues(), more);
}

TEST_F(CancelledJobs, ADeletionOfAKeyLeavesTheRestAndShowsIt)
{
    fill(many);
    store("B/value", "5$kept");
    const WindowProbe probe("registry");
    openKey(probe);
    removeKey(probe);
    confirm("Delete");
    waitForProgress(probe, "^[\\d,]{2,}$");
    cancel(probe);
    EXPECT_EQ(status(probe), "Deleted a part of the key HKEY_CURRENT_USER\\A.");
    const int left = storedValues() - 1;
    EXPECT_GT(left, 0);
    EXPECT_LT(left, many);
    openKey(probe);
    EXPECT_EQ(model(probe, "values").rowCount(), left);
}

TEST_F(CancelledJobs, AnImportLeavesWhatItHasCarriedOutAndShowsIt)
{
    const WindowProbe probe("registry");
    beginImport(probe, many);
    ASSERT_TRUE(probe.settle());
    confirm("I&mport");
    waitForProgress(probe, "^[\\d,]{2,}$");
    cancel(probe);
    const int carriedOut = told(probe, "was cancelled. Statements carried out: ([\\d,]+)");
    EXPECT_GT(carriedOut, 1);
    EXPECT_LT(carriedOut, many);
    EXPECT_EQ(storedValues(), carriedOut);
    openKey(probe);
    EXPECT_EQ(model(probe, "values").rowCount(), carriedOut - 1); // the first made the key
}

TEST_F(CancelledJobs, ReadingAFileToImportTellsThatNothingWasImported)
{
    const WindowProbe probe("registry");
    beginImport(probe, 2 * many);
    cancel(probe);
    EXPECT_EQ(status(probe), "Cancelled: nothing was imported.");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(storedValues(), 0);
}

TEST_F(CancelledJobs, ASearchForFilesKeepsItsRowsAndCanBeDoneAgain)
{
    // Where there is one, in a folder in memory: so many files take seconds on a disk.
    const QString memory = QStringLiteral("/dev/shm");
    const bool useMemory = QFileInfo(memory).isWritable();
    const QTemporaryDir folder((useMemory ? memory : QDir::tempPath()) + "/XXXXXX");
    for (int i = 0; i < many; ++i) {
        QFile file(folder.filePath(QString::number(i)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
    }
    const WindowProbe probe("files");
    probe.type("pattern", folder.filePath("*"));
    probe.click("search");
    waitForProgress(probe, "^[1-9]");
    cancel(probe);
    const int found = told(probe, "Stopped: ([\\d,]+) found so far");
    EXPECT_GT(found, 0);
    EXPECT_LT(found, many);
    EXPECT_EQ(model(probe, "entries").rowCount(), found);
    probe.click("search"); // a large directory is read ahead in the first slice
    cancel(probe);
    EXPECT_EQ(status(probe), "Stopped: 0 found so far.");
    probe.click("search");
    ASSERT_TRUE(probe.settle());
    EXPECT_EQ(model(probe, "entries").rowCount(), many);
}

} // namespace
