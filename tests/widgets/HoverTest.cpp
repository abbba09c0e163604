#include "tests/support/Display.h"
#include "tests/support/WaitFor.h"
#include "widgets/ButtonMonitor.h"

#include <QGraphicsBlurEffect>
#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

// Counts the crossings that reach a widget, whatever comes of them.
class Crossings : public QObject
{
public:
    int entered = 0;
    int left = 0;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        entered += event->type() == QEvent::Enter ? 1 : 0;
        left += event->type() == QEvent::Leave ? 1 : 0;
        return false;
    }
};

// A window with room around each widget, and the mouse in an empty place of it.
class Hover : public testing::Test
{
protected:
    Hover()
    {
        page.setGeometry(100, 100, 400, 300);
        button->setGeometry(40, 40, 120, 40);
        button->installEventFilter(&g_buttonMonitor);
        button->installEventFilter(&crossings);
        page.show();
        EXPECT_TRUE(Display::activate(page));
        forgetTheMouse();
    }

    // The window may appear under the mouse, wherever the test before has left that.
    void forgetTheMouse()
    {
        moveOut();
        EXPECT_TRUE(waitFor([this] { return page.underMouse() && !button->underMouse(); }));
        crossings.entered = 0;
        crossings.left = 0;
    }

    void moveTo(const QWidget& widget) { moveTo(widget.mapToGlobal(widget.rect().center())); }

    void moveOut() { moveTo(page.mapToGlobal(QPoint(380, 280))); }

    void enterButton()
    {
        moveTo(*button);
        ASSERT_TRUE(waitFor([this] { return crossings.entered > 0; }));
    }

    void leaveButton()
    {
        moveOut();
        ASSERT_TRUE(waitFor([this] { return crossings.left > 0; }));
    }

    // Moves the mouse over the widget and away again, and sees both reach it.
    void cross(QWidget& widget)
    {
        Crossings seen;
        widget.installEventFilter(&seen);
        moveTo(widget);
        EXPECT_TRUE(waitFor([&] { return seen.entered > 0; }));
        hadEffect = widget.graphicsEffect() != nullptr;
        moveOut();
        EXPECT_TRUE(waitFor([&] { return seen.left > 0; }));
    }

    bool glows() const
    {
        return qobject_cast<QGraphicsDropShadowEffect*>(button->graphicsEffect()) != nullptr;
    }

    // Pixels around the button on the screen that are clearly blue.
    int bluePixels()
    {
        QTest::qWait(100); // until the window has been repainted
        const QImage picture = page.screen()->grabWindow(page.winId()).toImage();
        const QRect outside = button->geometry().adjusted(-10, -10, 10, 10);
        int count = 0;
        for (int y = outside.top(); y <= outside.bottom(); ++y)
            for (int x = outside.left(); x <= outside.right(); ++x)
                count += !button->geometry().contains(x, y) &&
                         qBlue(picture.pixel(x, y)) > qRed(picture.pixel(x, y)) + 20;
        return count;
    }

    QWidget page;
    QPointer<QPushButton> button = new QPushButton(QStringLiteral("Push"), &page);
    Crossings crossings;
    bool hadEffect = false; // the crossed widget, while the mouse was over it

private:
    static void moveTo(const QPoint& point)
    {
        ASSERT_TRUE(Display::xdotool(
            {"mousemove", QString::number(point.x()), QString::number(point.y())}));
    }
};

TEST_F(Hover, ShowsTheGlowUntilTheMouseLeaves)
{
    EXPECT_FALSE(glows());
    enterButton();
    EXPECT_TRUE(glows());
    leaveButton();
    EXPECT_FALSE(glows());
}

TEST_F(Hover, PaintsBlueAroundTheButton)
{
    EXPECT_EQ(0, bluePixels());
    enterButton();
    EXPECT_GT(bluePixels(), 500);
    leaveButton();
    EXPECT_EQ(0, bluePixels());
}

TEST_F(Hover, LeavesADisabledButtonDull)
{
    button->setEnabled(false);
    enterButton();
    EXPECT_FALSE(glows());
    leaveButton();
    EXPECT_FALSE(glows());
}

TEST_F(Hover, KeepsTheGlowOfAButtonDisabledMeanwhile)
{
    enterButton();
    button->setEnabled(false);
    leaveButton();
    EXPECT_TRUE(glows());
    button->setEnabled(true);
    EXPECT_TRUE(glows());
    cross(*button);
    EXPECT_TRUE(hadEffect);
    EXPECT_FALSE(glows());
}

TEST_F(Hover, SurvivesTheButton)
{
    enterButton();
    delete button;
    moveOut();
    QTest::qWait(50);
    EXPECT_TRUE(page.findChildren<QPushButton*>().isEmpty());
}

TEST_F(Hover, TakesAnotherEffectAway)
{
    const QPointer<QGraphicsEffect> blur = new QGraphicsBlurEffect;
    button->setGraphicsEffect(blur);
    enterButton();
    EXPECT_TRUE(blur.isNull());
    EXPECT_TRUE(glows());
    leaveButton();
    EXPECT_EQ(nullptr, button->graphicsEffect());
}

TEST_F(Hover, LeavesLabelsAndToolButtonsAlone)
{
    for (QWidget* other : {static_cast<QWidget*>(new QLabel(QStringLiteral("Label"), &page)),
                           static_cast<QWidget*>(new QToolButton(&page))}) {
        other->setGeometry(40, 140, 120, 40);
        other->installEventFilter(&g_buttonMonitor);
        other->show();
        cross(*other);
        EXPECT_FALSE(hadEffect);
        delete other;
    }
}

TEST_F(Hover, LetsClicksThrough)
{
    QSignalSpy clicks(button, &QPushButton::clicked);
    enterButton();
    ASSERT_TRUE(Display::xdotool({"click", "1"}));
    EXPECT_TRUE(clicks.count() == 1 || clicks.wait());
    EXPECT_TRUE(glows());
}

} // namespace
