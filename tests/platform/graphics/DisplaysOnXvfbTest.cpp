#include "platform/PlatformCursorManagerImp.h"
#include "platform/PlatformResourceManagerImp.h"
#include "platform/PlatformUserInputManagerImp.h"

#include "tests/support/Display.h"
#include "tests/support/WaitFor.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <set>

namespace {

constexpr int keyDown = -32768;

// Knows which keys are down, from its own events.
class KeyRecorder : public QWidget
{
public:
    std::set<int> down;

protected:
    void keyPressEvent(QKeyEvent* event) override { down.insert(event->key()); }
    void keyReleaseEvent(QKeyEvent* event) override { down.erase(event->key()); }
};

// A window that has the focus and the pointer, and input from outside the application.
class RealInput : public testing::Test
{
protected:
    void SetUp() override
    {
        window.setGeometry(200, 150, 400, 300);
        window.show();
        ASSERT_TRUE(Display::activate(window));
        movePointer(300, 300);
    }

    void movePointer(int x, int y)
    {
        ASSERT_TRUE(Display::xdotool({"mousemove", QString::number(x), QString::number(y)}));
        EXPECT_TRUE(waitFor([=] { return QCursor::pos() == QPoint(x, y); }));
    }

    // A modifier's own press event does not carry it yet; the pointer's next movement does.
    void expectState(int virtualKey, int state)
    {
        EXPECT_TRUE(waitFor([&] {
            m_nudge = !m_nudge;
            movePointer(m_nudge ? 301 : 300, 300);
            QCoreApplication::processEvents();
            return input.getKeyState(virtualKey) == state;
        })) << virtualKey;
        EXPECT_EQ(state, input.getAsyncKeyState(virtualKey)) << virtualKey;
    }

    KeyRecorder window;
    PlatformUserInputManagerImp input;

private:
    bool m_nudge = false;
};

struct ButtonRow
{
    const char* button;
    int virtualKey;
};

TEST_F(RealInput, OfMouseButtonsIsTheirKeyState)
{
    for (const ButtonRow& row :
         {ButtonRow{"1", VK_LBUTTON}, ButtonRow{"2", VK_MBUTTON}, ButtonRow{"3", VK_RBUTTON}}) {
        expectState(row.virtualKey, 0);
        ASSERT_TRUE(Display::xdotool({"mousedown", row.button}));
        expectState(row.virtualKey, keyDown);
        ASSERT_TRUE(Display::xdotool({"mouseup", row.button}));
        expectState(row.virtualKey, 0);
    }
}

struct ModifierRow
{
    const char* key;
    std::vector<int> virtualKeys;
};

TEST_F(RealInput, OfOneModifierIsTheKeyStateOfBothSides)
{
    const ModifierRow rows[] = {
        {"Shift_L", {VK_SHIFT, VK_LSHIFT, VK_RSHIFT}},
        {"Shift_R", {VK_SHIFT, VK_LSHIFT, VK_RSHIFT}},
        {"Control_L", {VK_CONTROL, VK_LCONTROL, VK_RCONTROL}},
        {"Control_R", {VK_CONTROL, VK_LCONTROL, VK_RCONTROL}},
        {"Alt_L", {VK_MENU, VK_LMENU, VK_RMENU}},
    };
    for (const ModifierRow& row : rows) {
        ASSERT_TRUE(Display::xdotool({"keydown", row.key}));
        for (const int key : row.virtualKeys)
            expectState(key, keyDown);
        ASSERT_TRUE(Display::xdotool({"keyup", row.key}));
        for (const int key : row.virtualKeys)
            expectState(key, 0);
    }
}

struct KeyRow
{
    const char* name;
    Qt::Key key;
};

TEST_F(RealInput, OfOtherKeysIsNoKeyState)
{
    for (const KeyRow& row : {KeyRow{"a", Qt::Key_A}, KeyRow{"Return", Qt::Key_Return},
                              KeyRow{"space", Qt::Key_Space}}) {
        ASSERT_TRUE(Display::xdotool({"keydown", row.name}));
        ASSERT_TRUE(waitFor([&] { return window.down.count(row.key) == 1; }));
        for (const int virtualKey : {0x41, VK_RETURN, VK_SPACE})
            EXPECT_EQ(0, input.getKeyState(virtualKey)) << row.name << ' ' << virtualKey;
        ASSERT_TRUE(Display::xdotool({"keyup", row.name}));
        ASSERT_TRUE(waitFor([&] { return window.down.empty(); }));
    }
}

TEST_F(RealInput, MovesTheCursorPosition)
{
    PlatformCursorManagerImp cursors;
    for (const POINT& position : {POINT{17, 29}, POINT{1279, 799}, POINT{640, 400}}) {
        movePointer(position.x, position.y);
        POINT found{};
        EXPECT_EQ(1, cursors.GetCursorPos(&found));
        EXPECT_EQ(position.x, found.x);
        EXPECT_EQ(position.y, found.y);
    }
}

TEST_F(RealInput, IsMappedToTheWindowBelowItsFrame)
{
    PlatformCursorManagerImp cursors;
    const QPoint origin = window.geometry().topLeft();
    movePointer(origin.x() + 25, origin.y() + 35);
    POINT point{};
    EXPECT_EQ(1, cursors.GetCursorPos(&point));
    EXPECT_EQ(1, cursors.ScreenToClient(&window, &point));
    EXPECT_EQ(25, point.x);
    EXPECT_EQ(35, point.y);
}

TEST(RealScreen, IsTheMonitorAndTheDesktop)
{
    PlatformResourceManagerImp resources;
    HMONITOR monitor = resources.MonitorFromPoint({1279, 799}, MONITOR_DEFAULTTONULL);
    EXPECT_EQ(QGuiApplication::primaryScreen(), monitor);
    EXPECT_EQ(nullptr, resources.MonitorFromPoint({1280, 799}, MONITOR_DEFAULTTONULL));
    MONITORINFO info{};
    EXPECT_EQ(1, resources.GetMonitorInfoW(monitor, &info));
    EXPECT_EQ(1279, info.rcMonitor.right);
    EXPECT_EQ(799, info.rcMonitor.bottom);
    EXPECT_EQ(1280, resources.GetSystemMetrics(SM_CXFULLSCREEN));
    EXPECT_EQ(800, resources.GetSystemMetrics(SM_CYFULLSCREEN));
}

} // namespace
