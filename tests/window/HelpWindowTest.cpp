#include "window/HelpWindow.h"

#include "app/HostInformation.h"
#include "app/Version.h"
#include "tests/support/WaitFor.h"
#include "window/AboutDialog.h"
#include "window/MainWindow.h"
#include "window/StatusLine.h"
#include "window/WindowSize.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

class HelpWindowTest : public testing::Test
{
protected:
    QTextBrowser& text() { return *m_help.findChild<QTextBrowser*>(); }
    std::string plain() { return text().toPlainText().toStdString(); }

    HelpWindow m_help{pageCatalogue()};
};

TEST_F(HelpWindowTest, SaysWhatEachPageAnswers)
{
    for (const PageEntry& page : pageCatalogue()) {
        EXPECT_FALSE(page.answers.isEmpty()) << page.name.toStdString();
        EXPECT_NE(plain().find(page.answers.toStdString()), std::string::npos)
            << page.name.toStdString();
    }
}

TEST_F(HelpWindowTest, SaysWhichCallsAreWideAndWhichNarrow)
{
    for (const char* call :
         {"GetPrivateProfileStringW", "GetPrivateProfileIntW", "GetPrivateProfileSectionW",
          "WritePrivateProfileStringW", "GetPrivateProfileStringA", "WritePrivateProfileStringA"})
        EXPECT_NE(plain().find(call), std::string::npos) << call;
}

TEST_F(HelpWindowTest, NamesTheKeys)
{
    for (const char* key :
         {"F1", "F5", "Ctrl+F", "Ctrl+Z", "Alt+1", "Alt+9", "Ctrl+Q", "Ctrl+Return", "Backspace",
          "Alt+Up", "F8", "Shift+F3", "Shift+F10, Menu"})
        EXPECT_NE(plain().find(key), std::string::npos) << key;
}

TEST_F(HelpWindowTest, OpensAtThePartAboutAPage)
{
    m_help.showAt("registry");
    ASSERT_TRUE(waitForActive(&m_help));
    const int first = text().verticalScrollBar()->value();
    m_help.hide();
    m_help.showAt("log");
    EXPECT_GT(text().verticalScrollBar()->value(), first);
    EXPECT_EQ(m_help.focusWidget(), &text());
    EXPECT_EQ(m_help.size().boundedTo(smallestWindow), m_help.size());
}

TEST(AboutDialogTest, TellsVersionQtAndHostLibrary)
{
    const AboutDialog about;
    const auto field = [&about](const char* name) {
        return about.findChild<QLineEdit*>(QLatin1String(name))->text();
    };
    EXPECT_EQ(field("version"), programVersion());
    EXPECT_TRUE(QRegularExpression("^\\d+\\.\\d+\\.\\d+$").match(field("version")).hasMatch())
        << field("version").toStdString();
    EXPECT_TRUE(field("qt").startsWith(qVersion()));
    EXPECT_EQ(field("library"), HostInformation::libraryPath());
}

TEST(AboutDialogTest, CopiesWhatItTells)
{
    AboutDialog about;
    for (QPushButton* button : about.findChildren<QPushButton*>()) {
        if (button->text() == "&Copy")
            button->click();
    }
    const QString copied = QApplication::clipboard()->text();
    EXPECT_TRUE(copied.contains(QLatin1String(programVersion()))) << copied.toStdString();
    EXPECT_TRUE(copied.contains(HostInformation::libraryPath())) << copied.toStdString();
}

TEST(MainWindowHelp, F1AndTheButtonOpenTheSameWindow)
{
    MainWindow window;
    window.show();
    ASSERT_TRUE(waitForActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    auto* help = window.findChild<HelpWindow*>();
    ASSERT_TRUE(help);
    EXPECT_TRUE(help->isVisible());
    EXPECT_FALSE(help->isModal());
    QTest::keyClick(help, Qt::Key_Escape);
    EXPECT_FALSE(help->isVisible());
    ASSERT_TRUE(waitForActive(&window));
    QTest::mouseClick(window.findChild<StatusLine*>()->findChild<QToolButton*>(), Qt::LeftButton);
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(window.findChildren<HelpWindow*>().size(), 1);
}

TEST(MainWindowHelp, CtrlQInItClosesTheProgramsWindow)
{
    MainWindow window;
    window.show();
    ASSERT_TRUE(waitForActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    auto* help = window.findChild<HelpWindow*>();
    ASSERT_TRUE(waitFor([help] { return QApplication::activeWindow() == help; }));
    QTest::keyClick(help, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(help->isVisible());
}

} // namespace
