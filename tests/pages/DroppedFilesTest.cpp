#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/PageFixture.h"
#include "tests/support/WaitFor.h"
#include "tests/window/EndlessJob.h"

#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"
#include "window/FileOpener.h"

#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <QTreeView>

namespace {

// Files that are let go over parts of the window, as the display would tell it.
class DroppedFiles : public PageFixture
{
protected:
    DroppedFiles()
    {
        setPlatformServices(&g_PlatformServices);
        m_file.write("[Net]\nMask=255\n");
    }

    QString registryFile() const
    {
        const QString path = m_file.folder() + "/some.REG";
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\B]\r\n");
        return path;
    }

    // As a file manager gives it: with the address as a text.
    static bool drop(QWidget& target, const QString& path)
    {
        return drop(target, QList<QUrl>{QUrl::fromLocalFile(path)});
    }

    static bool drop(QWidget& target, const QList<QUrl>& files)
    {
        QMimeData data;
        data.setUrls(files);
        data.setText(files.first().toString());
        const QPoint place = target.rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&target, &enter);
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        drop.ignore();
        QApplication::sendEvent(&target, &drop);
        return drop.isAccepted();
    }

    // By which the window looks whether a page can open the file that is waiting for it.
    QTimer* waiting() { return m_window.findChild<FileOpener*>()->findChild<QTimer*>(); }
    bool isFileWaiting() { return waiting()->isActive(); }

    template <typename Control>
    Control* shown(const char* name)
    {
        Control* found = nullptr;
        const bool isThere = waitFor([&] {
            found = page() ? page()->findChild<Control*>(name) : nullptr;
            return found && found->isVisible();
        });
        EXPECT_TRUE(isThere) << name;
        return found;
    }

    void expectProfile()
    {
        auto* lines = shown<QTableView>("lines");
        ASSERT_NE(lines, nullptr);
        EXPECT_TRUE(waitFor([lines] { return lines->model()->rowCount() == 2; }));
        EXPECT_EQ(shown<QLineEdit>("file")->text(), m_file.path());
    }

    static void expectImport()
    {
        ASSERT_TRUE(waitFor([] { return QApplication::activeModalWidget() != nullptr; }));
        auto* preview = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        EXPECT_EQ(preview->windowTitle().toStdString(), "Import some.REG");
        preview->reject();
    }

    ProfileFixture m_file;
};

TEST_F(DroppedFiles, AProfileOpensInItsPageFromAnother)
{
    open("registry");
    EXPECT_TRUE(drop(*page()->findChild<QTreeView*>()->viewport(), m_file.path()));
    expectProfile();
}

TEST_F(DroppedFiles, AProfileIsNoTextForAField)
{
    open("files");
    auto* pattern = page()->findChild<QLineEdit*>("pattern");
    const QString before = pattern->text();
    EXPECT_TRUE(drop(*pattern, m_file.path()));
    EXPECT_EQ(pattern->text(), before);
    expectProfile();
}

TEST_F(DroppedFiles, AProfileOpensInThePageInView)
{
    open("profiles");
    EXPECT_TRUE(drop(*page()->findChild<QTableView*>("lines")->viewport(), m_file.path()));
    expectProfile();
}

class DroppedRegistryFile : public DroppedFiles, public testing::WithParamInterface<const char*>
{
};

TEST_P(DroppedRegistryFile, IsPreviewed)
{
    open(GetParam());
    EXPECT_TRUE(drop(m_window, registryFile()));
    expectImport();
}

INSTANTIATE_TEST_SUITE_P(Pages, DroppedRegistryFile,
                         testing::Values("files", "profiles", "registry"),
                         [](const auto& row) { return std::string(row.param); });

TEST_F(DroppedFiles, OtherFilesAreNotTaken)
{
    open("files");
    EXPECT_FALSE(drop(m_window, m_file.folder() + "/a.txt"));
    EXPECT_FALSE(drop(*page()->findChild<QTableView*>("entries")->viewport(), "/a.txt"));
}

TEST_F(DroppedFiles, APartOfAPageThatTakesAnyFileGoesFirst)
{
    open("crypto");
    page()->findChild<QTabWidget*>()->setCurrentIndex(1);
    EXPECT_TRUE(drop(*control<QPlainTextEdit>("Text"), m_file.path()));
    EXPECT_EQ(control<QLineEdit>("Path of the file")->text(), m_file.path());
}

TEST_F(DroppedFiles, SeveralAtOnceAreRefusedWithAWord)
{
    open("files");
    const QUrl file = QUrl::fromLocalFile(m_file.path());
    EXPECT_TRUE(drop(m_window, {file, QUrl::fromLocalFile(registryFile())}));
    EXPECT_EQ(status(), "One file at a time, please.");
}

TEST_F(DroppedFiles, AFileDoesNotWaitWhereAnotherPageIsChosenMeanwhile)
{
    open("profiles");
    Page* profiles = page();
    profiles->startJob("Endless", std::make_unique<EndlessJob>(), [](EndlessJob&, bool) {});
    EXPECT_TRUE(drop(m_window, m_file.path()));
    QTest::keyClick(&m_window, Qt::Key_3, Qt::AltModifier);
    ASSERT_TRUE(waitFor([&] { return page() && page() != profiles; }));
    EXPECT_TRUE(waitFor([this] { return !isFileWaiting(); }));
    profiles->cancelJob();
    QTest::keyClick(&m_window, Qt::Key_2, Qt::AltModifier);
    ASSERT_TRUE(waitFor([&] { return page() == profiles; }));
    EXPECT_FALSE(isFileWaiting() || profiles->isBusy());
    EXPECT_EQ(profiles->findChild<QTableView*>("lines")->model()->rowCount(), 0);
}

TEST_F(DroppedFiles, AFileWaitsForAPageThatIsAtWork)
{
    open("profiles");
    page()->startJob("Endless", std::make_unique<EndlessJob>(), [](EndlessJob&, bool) {});
    EXPECT_TRUE(drop(m_window, m_file.path()));
    const QSignalSpy looks(waiting(), &QTimer::timeout);
    EXPECT_TRUE(waitFor([&] { return looks.size() >= 2 || !isFileWaiting(); }));
    EXPECT_TRUE(isFileWaiting());
    EXPECT_EQ(page()->findChild<QTableView*>("lines")->model()->rowCount(), 0);
    page()->cancelJob();
    expectProfile();
}

} // namespace
