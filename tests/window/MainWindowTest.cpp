#include "window/MainWindow.h"

#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/WaitFor.h"
#include "tests/window/EndlessJob.h"
#include "widgets/QAnimationStackedWidget.h"
#include "window/Page.h"
#include "window/PageRail.h"
#include "window/PathLabel.h"
#include "window/StatusLine.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// The page's place in the catalogue, counted from 0; -1 for an unknown one.
int place(const QString& name)
{
    const std::vector<PageEntry> pages = pageCatalogue();
    const auto found = std::find_if(pages.begin(), pages.end(),
                                    [&name](const PageEntry& page) { return page.name == name; });
    return found == pages.end() ? -1 : static_cast<int>(found - pages.begin());
}

class MainWindowTest : public testing::Test
{
protected:
    MainWindowTest() { setPlatformServices(&g_PlatformServices); }

    void show()
    {
        m_window.show();
        ASSERT_TRUE(waitForActive(&m_window));
        ASSERT_TRUE(waitFor([this] { return m_window.currentPage() != nullptr; }));
    }

    QAnimationStackedWidget& stack() { return *m_window.findChild<QAnimationStackedWidget*>(); }
    QPushButton& button(const QString& name)
    {
        return *m_window.findChild<PageRail*>()->findChild<QPushButton*>(name);
    }
    void pressDigit(const QString& page)
    {
        const auto digit = static_cast<Qt::Key>(Qt::Key_1 + place(page));
        QTest::keyClick(&m_window, digit, Qt::AltModifier);
    }
    bool reaches(const QString& page)
    {
        return waitFor([this, &page] {
            return stack().currentIndex() == place(page) && m_window.currentPage() != nullptr;
        });
    }
    int madePages() { return stack().findChildren<Page*>().size(); }

    MainWindow m_window;
};

TEST_F(MainWindowTest, HasOneCheckableButtonForEachPage)
{
    const std::vector<PageEntry> pages = pageCatalogue();
    const int count = static_cast<int>(pages.size());
    const auto buttons = m_window.findChild<PageRail*>()->findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), count);
    ASSERT_EQ(stack().count(), count);
    for (int i = 0; i < count; ++i) {
        EXPECT_EQ(buttons.at(i)->objectName(), pages[static_cast<std::size_t>(i)].name);
        EXPECT_TRUE(buttons.at(i)->isCheckable());
        EXPECT_FALSE(buttons.at(i)->icon().isNull());
        EXPECT_FALSE(buttons.at(i)->accessibleName().isEmpty());
        EXPECT_EQ(buttons.at(i)->isChecked(), i == 0);
    }
}

TEST_F(MainWindowTest, MakesNoPageBeforeItIsShown)
{
    EXPECT_EQ(madePages(), 0);
    show();
    EXPECT_EQ(madePages(), 1);
}

TEST_F(MainWindowTest, MakesAPageOnItsFirstVisitAndKeepsIt)
{
    show();
    Page* registry = m_window.currentPage();
    button("log").click();
    ASSERT_TRUE(reaches("log"));
    EXPECT_EQ(madePages(), 2);
    button("registry").click();
    ASSERT_TRUE(reaches("registry"));
    EXPECT_EQ(m_window.currentPage(), registry);
    EXPECT_EQ(madePages(), 2);
}

TEST_F(MainWindowTest, SlidesOnAndBackAndChecksTheButton)
{
    show();
    button("files").click();
    EXPECT_TRUE(button("files").isChecked());
    EXPECT_EQ(stack().currentIndex(), 0); // the slide has only begun
    ASSERT_TRUE(reaches("files"));
    button("profiles").click();
    ASSERT_TRUE(reaches("profiles"));
    EXPECT_TRUE(button("profiles").isChecked());
    EXPECT_FALSE(button("files").isChecked());
}

TEST_F(MainWindowTest, ChoosingThePageInViewDoesNotFreezeTheStack)
{
    show();
    button("registry").click();
    QTest::qWait(50);
    button("log").click();
    EXPECT_TRUE(reaches("log"));
}

TEST_F(MainWindowTest, RemembersTheLastChoiceMadeDuringASlide)
{
    show();
    QSignalSpy changes(&stack(), &QStackedWidget::currentChanged);
    button("files").click();
    button("fonts").click();
    button("crypto").click();
    EXPECT_TRUE(button("crypto").isChecked());
    ASSERT_TRUE(reaches("crypto"));
    EXPECT_EQ(changes.size(), 2); // files, then crypto
    QTest::qWait(400);
    EXPECT_EQ(stack().currentIndex(), place("crypto"));
}

TEST_F(MainWindowTest, ComesBackWhenTheLeavingPageIsChosenDuringASlide)
{
    show();
    button("files").click();
    button("registry").click();
    ASSERT_TRUE(reaches("files"));
    EXPECT_TRUE(reaches("registry"));
    EXPECT_TRUE(button("registry").isChecked());
    button("log").click();
    EXPECT_TRUE(reaches("log"));
}

TEST_F(MainWindowTest, AltAndADigitChooseAPage)
{
    show();
    for (const QString page : {"log", "fonts", "registry"}) {
        pressDigit(page);
        ASSERT_TRUE(reaches(page)) << page.toStdString();
    }
}

TEST_F(MainWindowTest, ABusyPageIsCancelledByKeyboardAfterAVisitElsewhere)
{
    show();
    ASSERT_TRUE(waitFor([this] { return !m_window.currentPage()->isBusy(); }));
    m_window.currentPage()->setFocus();
    bool cancelled = false;
    m_window.currentPage()->startJob(
        "Endless", std::make_unique<EndlessJob>(),
        [&cancelled](EndlessJob&, bool complete) { cancelled = !complete; });
    for (const QString page : {"log", "registry"}) {
        pressDigit(page);
        ASSERT_TRUE(reaches(page));
        QTest::qWait(50);
    }
    ASSERT_TRUE(QApplication::focusWidget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(cancelled);
    m_window.currentPage()->cancelJob();
}

TEST_F(MainWindowTest, TheRailTakesArrowKeysAndIsOneStopForTab)
{
    show();
    button("registry").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    ASSERT_TRUE(reaches("profiles"));
    EXPECT_TRUE(button("profiles").hasFocus());
    EXPECT_EQ(button("log").focusPolicy() & Qt::TabFocus, 0);
    EXPECT_NE(button("profiles").focusPolicy() & Qt::TabFocus, 0);
}

TEST_F(MainWindowTest, OpensOnTheRequestedPageWithoutSliding)
{
    m_window.showPage("log");
    show();
    EXPECT_EQ(stack().currentIndex(), place("log"));
    EXPECT_EQ(madePages(), 1);
    EXPECT_TRUE(button("log").isChecked());
}

TEST_F(MainWindowTest, IgnoresAPageThatDoesNotExist)
{
    for (const char* name : {"", "Registry", "pages"}) {
        m_window.showPage(name);
        EXPECT_EQ(stack().currentIndex(), 0);
        EXPECT_TRUE(button("registry").isChecked());
    }
}

TEST_F(MainWindowTest, TellsItsSurroundingsInTheStatusLine)
{
    QStringList texts;
    for (const QLabel* label : m_window.findChildren<QLabel*>())
        texts.append(label->text());
    for (const PathLabel* label : m_window.findChildren<PathLabel*>())
        texts.append(label->text() + "|" + label->toolTip());
    EXPECT_TRUE(texts.contains("English")) << texts.join('\n').toStdString();
    EXPECT_EQ(texts.filter("libKdPlatformBase.so|/").size(), 1) << texts.join('\n').toStdString();
    EXPECT_EQ(
        texts.filter("~/data/window_test/registry.ini|" + g_globalSettings->fileName()).size(), 1)
        << texts.join('\n').toStdString();
}

TEST_F(MainWindowTest, ThePathsOfTheStatusLineAreReadOutAndCopied)
{
    show();
    const auto labels = m_window.findChild<StatusLine*>()->findChildren<PathLabel*>();
    ASSERT_EQ(labels.size(), 2);
    EXPECT_EQ(labels.last()->accessibleName(), "Settings store: " + g_globalSettings->fileName());
    for (PathLabel* label : labels) {
        EXPECT_NE(label->focusPolicy() & Qt::TabFocus, 0);
        m_window.setAttribute(Qt::WA_KeyboardFocusChange); // as Tab does
        const QImage without = label->grab().toImage();
        label->setFocus(Qt::TabFocusReason);
        EXPECT_NE(label->grab().toImage(), without) << "no focus frame";
        QTest::keyClick(label, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), label->toolTip());
    }
}

TEST_F(MainWindowTest, FitsASmallScreen)
{
    show();
    m_window.resize(800, 600);
    EXPECT_EQ(m_window.size(), QSize(800, 600));
    EXPECT_LE(m_window.minimumSizeHint().width(), 800);
    EXPECT_LE(m_window.minimumSizeHint().height(), 560);
}

// A control of the page, which is the one that comes first.
TEST_F(MainWindowTest, APageThatIsChosenGetsTheKeyboard)
{
    show();
    const auto pageHasKeyboard = [this] {
        const Page* page = m_window.currentPage();
        return page && page->focusProxy() && page->focusProxy()->hasFocus();
    };
    for (const QString page : {"displays", "files"}) {
        button("registry").setFocus();
        pressDigit(page);
        ASSERT_TRUE(reaches(page));
        EXPECT_TRUE(waitFor(pageHasKeyboard)) << page.toStdString();
    }
    for (const QString page : {"fonts", "displays", "displays"}) {
        QTest::mouseClick(&button(page), Qt::LeftButton);
        ASSERT_TRUE(reaches(page));
        EXPECT_TRUE(waitFor(pageHasKeyboard)) << page.toStdString();
    }
}

// Two pages give it to the control that they are for: the tree, and the pass phrase.
TEST_F(MainWindowTest, ThatControlIsTheFirstThatTabComesTo)
{
    show();
    for (const QString page : {"profiles", "files", "fonts", "displays", "input", "log"}) {
        pressDigit(page);
        ASSERT_TRUE(reaches(page));
        m_window.currentPage()->takeFocus();
        const QWidget* chosen = m_window.focusWidget();
        button(page).setFocus();
        QTest::keyClick(&button(page), Qt::Key_Tab);
        EXPECT_EQ(m_window.focusWidget(), chosen) << page.toStdString();
    }
}

enum class Part
{
    Rail,
    Page,
    StatusLine
};

Part partOf(const MainWindow& window, const QWidget* widget)
{
    if (window.findChild<PageRail*>()->isAncestorOf(widget))
        return Part::Rail;
    return window.findChild<StatusLine*>()->isAncestorOf(widget) ? Part::StatusLine : Part::Page;
}

TEST_F(MainWindowTest, TabGoesFromTheRailThroughThePageToTheStatusLine)
{
    m_window.showPage("files");
    show();
    button("files").setFocus();
    std::vector<Part> parts{Part::Rail};
    for (int stops = 0; stops < 100 && (stops == 0 || !button("files").hasFocus()); ++stops) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const Part part = partOf(m_window, QApplication::focusWidget());
        if (part != parts.back())
            parts.push_back(part);
    }
    EXPECT_EQ(parts, (std::vector<Part>{Part::Rail, Part::Page, Part::StatusLine, Part::Rail}));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(partOf(m_window, QApplication::focusWidget()), Part::StatusLine);
}

TEST_F(MainWindowTest, CtrlQClosesIt)
{
    show();
    QTest::keyClick(&m_window, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(MainWindowTest, HasAnIconOfItsOwn)
{
    const QImage icon = m_window.windowIcon().pixmap(64, 64).toImage();
    ASSERT_FALSE(icon.isNull());
    const QColor ground = icon.pixelColor(6, 6);
    EXPECT_EQ(ground, m_window.palette().color(QPalette::Highlight));
    EXPECT_NE(icon.pixelColor(32, 11), ground) << "the bollard";
    EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0) << "rounded";
}

} // namespace
