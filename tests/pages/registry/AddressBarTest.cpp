#include "pages/registry/AddressBar.h"

#include "inspection/JobRunner.h"
#include "tests/pages/registry/RegistryPageFixture.h"
#include "tests/support/MessageGuard.h"
#include "tests/support/WaitFor.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include <algorithm>

namespace {

class AddressBarTest : public RegistryPageFixture
{
protected:
    QLineEdit& line() const { return *m_page.findChild<QLineEdit*>("address"); }
    QPushButton& jump() const { return *m_page.findChild<QPushButton*>("jump"); }
    QWidget& list() const { return *line().completer()->popup(); }
    int listed() const { return line().completer()->model()->rowCount(); }

    bool isLooking() const
    {
        const auto runners = m_page.findChild<AddressBar*>()->findChildren<JobRunner*>();
        return std::any_of(runners.begin(), runners.end(),
                           [](const JobRunner* runner) { return runner->isRunning(); });
    }

    /// More than is looked at before the window has to answer; only the last one is a key.
    static void storeManyNames()
    {
        for (int i = 0; i < 50000; ++i)
            store("Many/k" + QString::number(i), "1$1");
        store("Many/key/v", "1$1");
    }
    void typeWhatManyNamesBeginWith()
    {
        focus(line());
        line().setText("HKLM\\Many\\");
        QTest::keyClicks(&line(), "k");
        EXPECT_TRUE(isLooking());
    }
    void enter(const QString& text)
    {
        line().setText(text);
        QTest::keyClick(&line(), Qt::Key_Return);
    }
};

// The offscreen platform says so of every list.
const QString offscreenLimits = QStringLiteral("This plugin does not support");

TEST_F(AddressBarTest, ListsWhatIsSlowToBeFound)
{
    storeManyNames();
    const ExpectMessage ofLists(offscreenLimits);
    show();
    typeWhatManyNamesBeginWith();
    EXPECT_TRUE(waitFor([this] { return list().isVisible(); }));
    EXPECT_EQ(listed(), 1);
}

TEST_F(AddressBarTest, OpensNoListOnceAnotherWidgetHasTheKeyboard)
{
    storeManyNames();
    show();
    typeWhatManyNamesBeginWith();
    tree().setFocus();
    EXPECT_TRUE(isLooking());
    EXPECT_TRUE(waitFor([this] { return !isLooking(); }));
    EXPECT_FALSE(list().isVisible());
    EXPECT_TRUE(tree().hasFocus());
}

TEST_F(AddressBarTest, ListsNothingOlderWhileItLooks)
{
    storeManyNames();
    const ExpectMessage ofLists(offscreenLimits);
    show();
    focus(line());
    line().clear();
    QTest::keyClicks(&line(), "hkey_l");
    EXPECT_TRUE(becomes([this] { return listed(); }, 1));
    typeWhatManyNamesBeginWith();
    EXPECT_EQ(listed(), 0);
    EXPECT_FALSE(list().isVisible());
}

TEST_F(AddressBarTest, OffersNoKeyWhereNoneIsLikeTheTypedOne)
{
    store("Software/Maker 06/v", "1$1");
    show();
    enter("HKLM\\nothing like it");
    EXPECT_TRUE(waitFor([this] { return !isLooking(); }));
    EXPECT_FALSE(jump().isVisible());
}

} // namespace
