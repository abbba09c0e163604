#include "window/BusyOverlay.h"

#include "tests/support/WaitFor.h"
#include "widgets/QProgressIndicator.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// An overlay over the lower part of a window.
class BusyOverlayTest : public testing::Test
{
protected:
    BusyOverlayTest()
    {
        m_window.resize(400, 300);
        m_content->setGeometry(0, 100, 400, 200);
        m_overlay = new BusyOverlay(m_content);
        m_window.show();
        EXPECT_TRUE(waitForActive(&m_window));
    }

    QStringList texts() const
    {
        QStringList all;
        for (const QLabel* label : m_overlay->findChildren<QLabel*>())
            all.append(label->text());
        return all;
    }
    QPushButton& cancel() const { return *m_overlay->findChild<QPushButton*>(); }

    QWidget m_window;
    QWidget* m_content = new QWidget(&m_window);
    BusyOverlay* m_overlay = nullptr;
};

TEST_F(BusyOverlayTest, IsHiddenAtFirst)
{
    EXPECT_FALSE(m_overlay->isVisible());
}

TEST_F(BusyOverlayTest, LiesOverTheContentAlone)
{
    m_overlay->cover("Searching");
    EXPECT_TRUE(m_overlay->isVisible());
    EXPECT_EQ(m_overlay->geometry(), m_content->geometry());
    m_content->setGeometry(0, 50, 300, 250);
    EXPECT_TRUE(waitFor([this] { return m_overlay->size() == m_content->size(); }));
}

TEST_F(BusyOverlayTest, TellsWhatIsDoneAndHowFarItHasCome)
{
    m_overlay->cover("Searching");
    EXPECT_EQ(texts(), QStringList({"Searching", " "}));
    m_overlay->setProgress("1,234 values");
    EXPECT_EQ(texts(), QStringList({"Searching", "1,234 values"}));
    m_overlay->cover("Deleting");
    EXPECT_EQ(texts(), QStringList({"Deleting", " "}));
}

TEST_F(BusyOverlayTest, AsksForACancelByButtonAndByEscape)
{
    QSignalSpy requests(m_overlay, &BusyOverlay::cancelRequested);
    m_overlay->cover("Searching");
    EXPECT_TRUE(cancel().hasFocus());
    QTest::mouseClick(&cancel(), Qt::LeftButton);
    EXPECT_EQ(requests.size(), 1);
    QTest::keyClick(&cancel(), Qt::Key_Escape);
    EXPECT_EQ(requests.size(), 2);
    QTest::keyClick(&cancel(), Qt::Key_A);
    EXPECT_EQ(requests.size(), 2);
    EXPECT_TRUE(m_overlay->isVisible()) << "who asked for it ends it";
}

TEST_F(BusyOverlayTest, StopsItsWheelWhenItGoes)
{
    m_overlay->cover("Searching");
    ASSERT_TRUE(m_overlay->findChild<QProgressIndicator*>());
    m_overlay->uncover();
    EXPECT_FALSE(m_overlay->isVisible());
    EXPECT_TRUE(waitFor([this] { return m_overlay->findChild<QProgressIndicator*>() == nullptr; }));
}

TEST_F(BusyOverlayTest, KeepsItsPanelInsideOfASmallPage)
{
    m_content->setGeometry(0, 0, 150, 60);
    m_overlay->cover("A title that is longer than the page is wide, by far");
    auto* panel = cancel().parentWidget();
    EXPECT_TRUE(m_overlay->rect().contains(panel->geometry()))
        << panel->geometry().left() << " to " << panel->geometry().right();
}

} // namespace
