#include "window/MainWindow.h"

#include "app/ApplicationLog.h"
#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/Display.h"
#include "tests/support/WaitFor.h"
#include "widgets/QAnimationStackedWidget.h"
#include "window/Page.h"
#include "window/PageCatalogue.h"
#include "window/PageRail.h"

#include <QApplication>
#include <QDialog>
#include <QGraphicsEffect>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace {

// The real window on a real display, driven from outside as a user's hands would.
class WindowOnScreen : public testing::Test
{
protected:
    WindowOnScreen()
    {
        setPlatformServices(&g_PlatformServices);
        g_globalSettings->clear();
        g_globalSettings->setValue("A/B/v", "5$deep");
        m_window.show();
        EXPECT_TRUE(waitForActive(&m_window));
        EXPECT_TRUE(waitFor([this] { return m_window.currentPage() != nullptr; }));
        EXPECT_TRUE(waitFor([] {
            auto* tree = qobject_cast<QTreeView*>(QApplication::focusWidget());
            return tree && tree->isExpanded(tree->model()->index(0, 0));
        }));
    }

    QAnimationStackedWidget& stack() { return *m_window.findChild<QAnimationStackedWidget*>(); }
    QPushButton& button(const QString& name)
    {
        return *m_window.findChild<PageRail*>()->findChild<QPushButton*>(name);
    }
    static void hover(const QWidget& widget)
    {
        const QPoint at = widget.mapToGlobal(widget.rect().center());
        EXPECT_TRUE(Display::xdotool(
            {"mousemove", "--sync", QString::number(at.x()), QString::number(at.y())}));
    }
    static void press(const QStringList& keys)
    {
        EXPECT_TRUE(Display::xdotool(QStringList("key") + keys));
    }
    bool reaches(int index)
    {
        return waitFor([this, index] { return stack().currentIndex() == index; });
    }
    bool reaches(const QString& page)
    {
        return waitFor([this, &page] { return shownPage() == page; });
    }
    QString shownPage()
    {
        return pageCatalogue()[static_cast<std::size_t>(stack().currentIndex())].name;
    }
    QImage picture() const
    {
        return QGuiApplication::primaryScreen()->grabWindow(m_window.winId()).toImage();
    }

    MainWindow m_window;
};

TEST_F(WindowOnScreen, AButtonGlowsWhileTheMouseIsOverIt)
{
    QPushButton& log = button("log");
    hover(log);
    ASSERT_TRUE(waitFor([&log] { return log.graphicsEffect() != nullptr; }));
    hover(button("files"));
    EXPECT_TRUE(waitFor([&log] { return log.graphicsEffect() == nullptr; }));
    EXPECT_TRUE(button("files").graphicsEffect());
}

TEST_F(WindowOnScreen, AClickSlidesThroughPicturesOfBothPages)
{
    const QImage before = picture();
    hover(button("log"));
    EXPECT_TRUE(Display::xdotool({"click", "1"}));
    ASSERT_TRUE(waitFor([this] { return button("log").isChecked(); }));
    QTest::qWait(100);
    ASSERT_EQ(stack().currentIndex(), 0) << "the slide was over before it could be looked at";
    const QImage during = picture();
    ASSERT_TRUE(reaches("log"));
    QTest::qWait(50);
    const QImage after = picture();
    EXPECT_NE(before, during);
    EXPECT_NE(during, after);
}

TEST_F(WindowOnScreen, ClicksDuringASlideAreFollowedAfterIt)
{
    for (const char* name : {"files", "profiles", "log"}) {
        hover(button(name));
        EXPECT_TRUE(Display::xdotool({"click", "1"}));
        QTest::qWait(20);
    }
    EXPECT_TRUE(reaches("log"));
    QTest::qWait(400);
    EXPECT_EQ(shownPage(), "log");
}

TEST_F(WindowOnScreen, EveryPageIsReachedByKeyboardAlone)
{
    const std::vector<PageEntry> pages = pageCatalogue();
    const int count = static_cast<int>(pages.size());
    for (int page = count - 1; page >= 0; --page) {
        press({QStringLiteral("alt+%1").arg(page + 1)});
        ASSERT_TRUE(reaches(page)) << page;
        QTest::qWait(50);
    }
    for (int page = count - 1; page >= 0; --page) {
        const QString& title = pages[static_cast<std::size_t>(page)].title;
        press({QKeySequence::mnemonic(title).toString().toLower()});
        ASSERT_TRUE(reaches(page)) << title.toStdString();
        QTest::qWait(50);
    }
}

TEST_F(WindowOnScreen, ChoosingByKeyboardPutsTheKeyboardIntoThePage)
{
    const int last = stack().count() - 1;
    press({QStringLiteral("alt+%1").arg(last + 1)});
    ASSERT_TRUE(reaches(last));
    EXPECT_TRUE(waitFor(
        [this] { return m_window.currentPage()->isAncestorOf(QApplication::focusWidget()); }));
    press({"alt+1"});
    ASSERT_TRUE(reaches(0));
    EXPECT_TRUE(waitFor(
        [this] { return m_window.currentPage()->isAncestorOf(QApplication::focusWidget()); }));
}

TEST_F(WindowOnScreen, AValueIsMadeEditedAndDeletedByKeyboardAlone)
{
    const auto dialogIs = [](bool open) {
        return waitFor([open] {
            const QWidget* modal = QApplication::activeModalWidget();
            return open ? modal && modal->isActiveWindow() : !modal;
        });
    };
    const auto stored = [] { return g_globalSettings->value("A/B/new").toString(); };
    press({"Down", "Right", "Down"}); // to A/B
    press({"alt+n", "s"});            // at once: the menu keeps the event loop to itself
    ASSERT_TRUE(dialogIs(true));
    press({"n", "e", "w", "Tab", "Tab", "x", "Tab", "Return"});
    ASSERT_TRUE(dialogIs(false));
    EXPECT_TRUE(becomes(stored, "5$x"));
    press({"Tab", "F2"}); // from the tree to the table, which has the new value selected
    ASSERT_TRUE(dialogIs(true));
    press({"y", "Tab", "Return"});
    ASSERT_TRUE(dialogIs(false));
    EXPECT_TRUE(becomes(stored, "5$y"));
    press({"Delete"});
    ASSERT_TRUE(dialogIs(true));
    press({"Left", "Return"});
    ASSERT_TRUE(dialogIs(false));
    EXPECT_TRUE(becomes(stored, "")); // behind the backup, a job of its own
    EXPECT_TRUE(g_globalSettings->contains("A/B/v"));
}

} // namespace
