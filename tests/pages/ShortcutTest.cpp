#include "pages/registry/FindPane.h"
#include "tests/inspection/registry/RegistryTest.h"
#include "tests/support/WaitFor.h"
#include "tests/window/EndlessJob.h"
#include "window/MainWindow.h"
#include "window/Page.h"

#include <QTest>
#include <QTreeView>

namespace {

// Keys pressed on the window with the registry page in view.
class Shortcuts : public RegistryTest
{
protected:
    void SetUp() override
    {
        store("A/v", "5$first");
        m_window.show();
        ASSERT_TRUE(waitForActive(&m_window));
        ASSERT_TRUE(waitFor([this] { return m_window.currentPage() && keys() == 1; }));
    }

    int keys()
    {
        const auto* model = m_window.currentPage()->findChild<QTreeView*>("keys")->model();
        return model->rowCount(model->index(0, 0));
    }
    bool findIsOpen() { return m_window.currentPage()->findChild<FindPane*>()->isVisible(); }
    void startEndlessJob()
    {
        m_window.currentPage()->startJob("Endless", std::make_unique<EndlessJob>(),
                                         [](EndlessJob&, bool) {});
        ASSERT_TRUE(m_window.currentPage()->isBusy());
    }
    void pressF5() { QTest::keyClick(&m_window, Qt::Key_F5); }
    void pressFind() { QTest::keyClick(&m_window, Qt::Key_F, Qt::ControlModifier); }

    MainWindow m_window;
};

TEST_F(Shortcuts, F5ShowsWhatTheStoreHoldsNow)
{
    store("B/v", "5$second");
    QTest::qWait(20);
    ASSERT_EQ(keys(), 1);
    pressF5();
    EXPECT_EQ(keys(), 2);
}

TEST_F(Shortcuts, CtrlFOpensTheSearch)
{
    ASSERT_FALSE(findIsOpen());
    pressFind();
    EXPECT_TRUE(findIsOpen());
}

TEST_F(Shortcuts, RestWhileAJobRuns)
{
    store("B/v", "5$second");
    startEndlessJob();
    pressF5();
    pressFind();
    EXPECT_EQ(keys(), 1);
    EXPECT_FALSE(findIsOpen());
    m_window.currentPage()->cancelJob();
    pressF5();
    pressFind();
    EXPECT_EQ(keys(), 2);
    EXPECT_TRUE(findIsOpen());
}

} // namespace
