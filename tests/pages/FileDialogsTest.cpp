#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/pages/FileDialogAnswer.h"
#include "tests/pages/WindowProbe.h"

#include "app/ApplicationLog.h"
#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// The pages' file dialogs, in the real window, from the button that brings them to the file.
class FileDialogs : public testing::Test
{
protected:
    FileDialogs()
    {
        setPlatformServices(&g_PlatformServices);
        g_globalSettings->clear();
        g_globalSettings->setValue("A/v", "5$text");
    }
    ~FileDialogs() override { g_globalSettings->clear(); }

    QString path(const char* name) const { return m_files.folder() + '/' + name; }
    QStringList files() const { return QDir(m_files.folder()).entryList(QDir::Files, QDir::Name); }

    // Presses the button with that caption and lets the dialog be answered.
    static void answer(const WindowProbe& probe, const QString& caption,
                       const FileDialogAnswer& answer)
    {
        ASSERT_TRUE(probe.settle());
        const auto buttons = probe.page().findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->text() == caption && button->isVisible())
                button->click();
        }
        ASSERT_TRUE(waitFor([&answer] { return !answer.title().isEmpty(); }));
        ASSERT_TRUE(probe.settle());
    }
    static QString status(const WindowProbe& probe) { return probe.page().statusText(); }

    ProfileFixture m_files;
};

TEST_F(FileDialogs, ExportWritesTheEncodingOfTheChosenType)
{
    const struct
    {
        const char* file;
        QByteArray start;
    } rows[] = {{"wide.reg", QByteArray("\xff\xfeW\0i\0", 6)}, {"narrow.reg", "Windo"}};
    const WindowProbe probe("registry");
    int type = 0;
    for (const auto& row : rows) {
        const FileDialogAnswer dialog(path(row.file), type++);
        answer(probe, "E&xport...", dialog);
        EXPECT_EQ(dialog.proposed().toStdString(), "registry.reg");
        EXPECT_EQ(ProfileFixture::bytesOf(path(row.file)).left(row.start.size()), row.start);
        EXPECT_TRUE(status(probe).startsWith("Exported to ")) << status(probe).toStdString();
    }
}

TEST_F(FileDialogs, ExportAddsTheSuffix)
{
    const WindowProbe probe("registry");
    answer(probe, "E&xport...", FileDialogAnswer(path("plain")));
    EXPECT_EQ(files(), QStringList("plain.reg"));
}

TEST_F(FileDialogs, ImportShowsWhatTheChosenFileHolds)
{
    m_files.write("Windows Registry Editor Version 5.00\r\n\r\n"
                  "[HKEY_CURRENT_USER\\B]\r\n\"w\"=dword:00000007\r\n");
    const WindowProbe probe("registry");
    answer(probe, "I&mport...", FileDialogAnswer(m_files.path(), 1));
    ASSERT_TRUE(waitFor([] { return QApplication::activeModalWidget() != nullptr; }));
    auto* preview = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    EXPECT_EQ(preview->windowTitle().toStdString(), "Import profile.ini");
    EXPECT_FALSE(g_globalSettings->contains("B/w"));
    preview->accept();
    ASSERT_TRUE(probe.settle());
    EXPECT_EQ(g_globalSettings->value("B/w").toString().toStdString(), "1$7");
}

TEST_F(FileDialogs, OpenShowsTheChosenProfile)
{
    m_files.write("[Net]\nMask=255\n");
    const WindowProbe probe("profiles");
    answer(probe, "Ope&n...", FileDialogAnswer(m_files.path()));
    EXPECT_EQ(probe.text("file"), m_files.path());
    EXPECT_EQ(probe.control<QTableView>("lines").model()->rowCount(), 2);
}

TEST_F(FileDialogs, BrowseSearchesTheChosenFolder)
{
    m_files.write("text");
    const WindowProbe probe("files");
    answer(probe, "&Browse...", FileDialogAnswer(m_files.folder()));
    EXPECT_EQ(probe.text("pattern"), path("*"));
    EXPECT_EQ(probe.control<QTableView>("entries").model()->rowCount(), 1);
}

TEST_F(FileDialogs, BrowseTakesTheChosenFileForItsDigests)
{
    m_files.write("abc");
    const WindowProbe probe("crypto");
    probe.page().findChild<QTabWidget*>()->setCurrentIndex(1);
    for (QRadioButton* choice : probe.page().findChildren<QRadioButton*>()) {
        if (choice->text() == "Of a fil&e")
            choice->click();
    }
    answer(probe, "Bro&wse...", FileDialogAnswer(m_files.path()));
    QStringList texts;
    for (const QLineEdit* edit : probe.page().findChildren<QLineEdit*>())
        texts << edit->text();
    EXPECT_TRUE(texts.contains(m_files.path())) << texts.join('|').toStdString();
}

TEST_F(FileDialogs, SaveAsWritesTheLinesShown)
{
    logInfo("a line for the saved file");
    ApplicationLog::instance().write(Logger::error, "an error for the saved file");
    const WindowProbe probe("log");
    ASSERT_TRUE(probe.settle());
    probe.page().findChild<QComboBox*>()->setCurrentIndex(3); // errors only
    const FileDialogAnswer dialog(path("saved"));
    answer(probe, "Sa&ve as...", dialog);
    ASSERT_TRUE(probe.settle());
    EXPECT_EQ(dialog.proposed().toStdString(), "quayside.log");
    const QByteArray saved = ProfileFixture::bytesOf(path("saved.log"));
    EXPECT_TRUE(saved.contains("an error for the saved file")) << saved.toStdString();
    EXPECT_FALSE(saved.contains("a line for the saved file"));
    EXPECT_TRUE(status(probe).startsWith("Saved to ")) << status(probe).toStdString();
}

TEST_F(FileDialogs, OpenAtHomeAndThenWhereTheLastOneForTheSamePurposeWasLeft)
{
    const WindowProbe probe("log");
    const FileDialogAnswer first(path("one"));
    answer(probe, "Sa&ve as...", first);
    EXPECT_EQ(first.folder(), QDir::homePath());
    const FileDialogAnswer second({});
    answer(probe, "Sa&ve as...", second);
    EXPECT_EQ(second.folder(), m_files.folder());
    const FileDialogAnswer third({});
    answer(probe, "Sa&ve as...", third);
    EXPECT_EQ(third.folder(), m_files.folder()) << "what is cancelled changes nothing";
}

TEST_F(FileDialogs, OfANewWindowRememberNothing)
{
    for (const char* file : {"one", "two"}) {
        const WindowProbe probe("log");
        const FileDialogAnswer dialog(path(file));
        answer(probe, "Sa&ve as...", dialog);
        EXPECT_EQ(dialog.folder(), QDir::homePath());
    }
}

TEST_F(FileDialogs, OpenWhereTheProfileInViewStands)
{
    m_files.write("[Net]\nMask=255\n");
    const WindowProbe probe("profiles");
    probe.type("file", u'"' + m_files.path() + u'"');
    QTest::keyClick(&probe.control<QWidget>("file"), Qt::Key_Return);
    ASSERT_TRUE(probe.settle());
    EXPECT_EQ(probe.text("file"), m_files.path());
    const FileDialogAnswer dialog({});
    answer(probe, "Ope&n...", dialog);
    EXPECT_EQ(dialog.folder(), m_files.folder());
}

struct Dialog
{
    const char* page;
    const char* button;
};

class CancelledFileDialog : public FileDialogs, public testing::WithParamInterface<Dialog>
{
};

TEST_P(CancelledFileDialog, ChangesNothing)
{
    const WindowProbe probe(GetParam().page);
    ASSERT_TRUE(probe.settle());
    // Some pages tell of themselves a moment after they have come to rest.
    static_cast<void>(QTest::qWaitFor([&probe] { return !status(probe).isEmpty(); }, 1000));
    const QString before = status(probe);
    answer(probe, GetParam().button, FileDialogAnswer({}));
    EXPECT_EQ(status(probe), before);
    EXPECT_EQ(files(), QStringList());
    EXPECT_EQ(g_globalSettings->allKeys(), QStringList("A/v"));
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, CancelledFileDialog,
    testing::Values(Dialog{"registry", "E&xport..."}, Dialog{"registry", "I&mport..."},
                    Dialog{"profiles", "Ope&n..."}, Dialog{"files", "&Browse..."},
                    Dialog{"log", "Sa&ve as..."}),
    [](const auto& row) { return std::string(row.param.page) + std::to_string(row.index); });

} // namespace
