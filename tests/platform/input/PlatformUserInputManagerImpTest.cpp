#include "platform/PlatformUserInputManagerImp.h"

#include <QTest>
#include <QWindow>
#include <qpa/qwindowsysteminterface.h>

#include <gtest/gtest.h>

#include <limits>
#include <map>

namespace {

constexpr int keyDown = -32768;

static_assert(static_cast<unsigned int>(keyDown) == 0xFFFF8000U, "the high bit, sign-extended");

// With its tables open, and rows that the system itself does not have.
class OpenManager : public PlatformUserInputManagerImp
{
public:
    using PlatformUserInputManagerImp::m_keyMap;
    using PlatformUserInputManagerImp::m_pressed;
};

// True events of a window, so that Qt's own record of buttons and modifiers follows them.
class KeyStates : public testing::Test
{
protected:
    KeyStates()
    {
        window.resize(200, 200);
        window.show();
    }

    ~KeyStates() override
    {
        for (const Qt::MouseButton button : pressed)
            QTest::mouseRelease(&window, button);
        modify(Qt::NoModifier);
    }

    void press(Qt::MouseButton button)
    {
        QTest::mousePress(&window, button);
        pressed.push_back(button);
    }

    void modify(Qt::KeyboardModifiers modifiers)
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
            QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::SynchronousDelivery>(
                &window, type, Qt::Key_A, modifiers);
        ASSERT_EQ(modifiers, QGuiApplication::keyboardModifiers());
    }

    // The virtual keys among 1..254 that are down.
    std::vector<int> keysDown()
    {
        std::vector<int> keys;
        for (int key = 1; key <= 254; ++key) {
            if (manager.getKeyState(key) != 0)
                keys.push_back(key);
        }
        return keys;
    }

    QWindow window;
    OpenManager manager;
    std::vector<Qt::MouseButton> pressed;
};

using Keys = std::vector<int>;

TEST_F(KeyStates, AreUpWhileNothingIsPressed)
{
    EXPECT_EQ(Keys{}, keysDown());
}

TEST_F(KeyStates, FollowEachMouseButton)
{
    press(Qt::LeftButton);
    EXPECT_EQ(Keys{VK_LBUTTON}, keysDown());
    press(Qt::MiddleButton);
    EXPECT_EQ((Keys{VK_LBUTTON, VK_MBUTTON}), keysDown());
    press(Qt::RightButton);
    EXPECT_EQ((Keys{VK_LBUTTON, VK_RBUTTON, VK_MBUTTON}), keysDown());
}

TEST_F(KeyStates, AreUpAgainAfterARelease)
{
    QTest::mousePress(&window, Qt::RightButton);
    QTest::mouseRelease(&window, Qt::RightButton);
    EXPECT_EQ(0, manager.getKeyState(VK_RBUTTON));
}

TEST_F(KeyStates, DoNotTakeOtherButtonsForKeys)
{
    // The code of one of these is that of Space.
    for (const Qt::MouseButton button : {Qt::BackButton, Qt::ForwardButton, Qt::ExtraButton3})
        press(button);
    ASSERT_TRUE(QGuiApplication::mouseButtons().testFlag(Qt::ExtraButton3));
    EXPECT_EQ(Keys{}, keysDown());
}

struct ModifierRow
{
    Qt::KeyboardModifiers modifiers;
    Keys keys;
};

const ModifierRow modifierRows[] = {
    {Qt::ShiftModifier, {VK_SHIFT, VK_LSHIFT, VK_RSHIFT}},
    {Qt::ControlModifier, {VK_CONTROL, VK_LCONTROL, VK_RCONTROL}},
    {Qt::AltModifier, {VK_MENU, VK_LMENU, VK_RMENU}},
    {Qt::ShiftModifier | Qt::AltModifier,
     {VK_SHIFT, VK_MENU, VK_LSHIFT, VK_RSHIFT, VK_LMENU, VK_RMENU}},
    {Qt::MetaModifier, {}},
    {Qt::KeypadModifier, {}},
    {Qt::GroupSwitchModifier, {}},
};

TEST_F(KeyStates, FollowTheModifiersOnBothSides)
{
    for (const ModifierRow& row : modifierRows) {
        modify(row.modifiers);
        EXPECT_EQ(row.keys, keysDown()) << row.modifiers;
    }
}

TEST_F(KeyStates, AreMinus32768WhenDown)
{
    modify(Qt::ShiftModifier);
    EXPECT_EQ(keyDown, manager.getKeyState(0x10));
    EXPECT_EQ(keyDown, manager.getKeyState(0xA1));
    EXPECT_EQ(keyDown, manager.getAsyncKeyState(0xA0));
    EXPECT_TRUE(manager.isKeyPressed(0x10));
    static_assert(std::is_same_v<int, decltype(manager.getKeyState(0))>);
}

TEST_F(KeyStates, OfLettersAndLockKeysAreAlwaysUp)
{
    QTest::keyPress(&window, Qt::Key_A);
    QTest::keyPress(&window, Qt::Key_CapsLock);
    for (const int key : {0x41, VK_CAPITAL, VK_NUMLOCK, VK_SCROLL, VK_F1, VK_LWIN, VK_XBUTTON1})
        EXPECT_EQ(0, manager.getKeyState(key)) << key;
    QTest::keyRelease(&window, Qt::Key_CapsLock);
    QTest::keyRelease(&window, Qt::Key_A);
}

struct FlagRow
{
    int virtualKey;
    int qtKey;
};

constexpr FlagRow flagRows[] = {{VK_RETURN, 0x01000004}, {VK_SPACE, 0x20}};

TEST_F(KeyStates, OfReturnAndSpaceAreWhatTheCallerSays)
{
    for (const FlagRow& row : flagRows) {
        EXPECT_EQ(Keys{}, keysDown());
        manager.setKeyPressed(row.qtKey, true);
        EXPECT_EQ(Keys{row.virtualKey}, keysDown());
        EXPECT_EQ(Keys{row.virtualKey}, keysDown()) << "asking changes nothing";
        manager.setKeyPressed(row.qtKey, false);
    }
    EXPECT_EQ(Keys{}, keysDown());
}

TEST_F(KeyStates, OfReturnAndSpaceDoNotFollowTheKeys)
{
    QTest::keyPress(&window, Qt::Key_Return);
    QTest::keyPress(&window, Qt::Key_Space);
    EXPECT_EQ(Keys{}, keysDown());
    QTest::keyRelease(&window, Qt::Key_Space);
    QTest::keyRelease(&window, Qt::Key_Return);
}

TEST_F(KeyStates, OfReturnDoNotFollowTheButtonWhoseBitIsInItsCode)
{
    press(Qt::MiddleButton);
    EXPECT_EQ(0, manager.getKeyState(VK_RETURN));
}

TEST_F(KeyStates, DoNotReadFlagsOfOtherCodes)
{
    for (const int qtKey : {1, 2, 4, 8, 0x41, 0x02000000, 0x01000005, 0x01000003, 0, -1, 0x21})
        manager.setKeyPressed(qtKey, true);
    EXPECT_EQ(11U, manager.m_pressed.size());
    EXPECT_EQ(Keys{}, keysDown());
}

TEST_F(KeyStates, EnterAFlagOnTheFirstQuestion)
{
    for (const int key : {0, 255, VK_SHIFT, VK_LBUTTON, 0x41})
        manager.getKeyState(key);
    EXPECT_TRUE(manager.m_pressed.empty());
    manager.getKeyState(VK_SPACE);
    EXPECT_EQ((std::map<int, bool>{{0x20, false}}), manager.m_pressed);
    manager.getAsyncKeyState(VK_RETURN);
    EXPECT_EQ((std::map<int, bool>{{0x20, false}, {0x01000004, false}}), manager.m_pressed);
}

TEST_F(KeyStates, AreUpOutsideOfOneTo254EvenForKeysInTheMap)
{
    press(Qt::LeftButton);
    for (const int key : {0, -1, 255, 256, 0x101, std::numeric_limits<int>::max(),
                          std::numeric_limits<int>::min()}) {
        manager.m_keyMap[key] = Qt::LeftButton;
        EXPECT_EQ(0, manager.getKeyState(key)) << key;
    }
    manager.m_keyMap[254] = Qt::LeftButton;
    EXPECT_EQ(keyDown, manager.getKeyState(254));
    EXPECT_EQ(keyDown, manager.getKeyState(1));
}

TEST_F(KeyStates, FollowTheMetaModifierForAKeyThatIsMappedToIt)
{
    manager.m_keyMap[VK_LWIN] = 0x10000000;
    EXPECT_EQ(0, manager.getKeyState(VK_LWIN));
    modify(Qt::MetaModifier);
    EXPECT_EQ(keyDown, manager.getKeyState(VK_LWIN));
}

TEST_F(KeyStates, AreUpForKeysThatAreMappedToAnythingElse)
{
    press(Qt::LeftButton);
    press(Qt::BackButton);
    modify(Qt::KeyboardModifierMask);
    for (const int code : {0, 3, 8, 0x10, 0x41, 0x20000000, 0x40000000, 0x06000000, -1}) {
        manager.setKeyPressed(code, true);
        manager.m_keyMap[VK_F1] = code;
        EXPECT_EQ(0, manager.getKeyState(VK_F1)) << code;
    }
}

TEST(KeyMap, HasItsFourteenRowsHoweverOftenItIsFilled)
{
    const std::map<int, int> rows = {{0x10, 0x02000000}, {0xA0, 0x02000000}, {0xA1, 0x02000000},
                                     {0x11, 0x04000000}, {0xA2, 0x04000000}, {0xA3, 0x04000000},
                                     {0x12, 0x08000000}, {0xA4, 0x08000000}, {0xA5, 0x08000000},
                                     {0x01, 1},          {0x02, 2},          {0x04, 4},
                                     {0x0D, 0x01000004}, {0x20, 0x20}};
    OpenManager manager;
    EXPECT_EQ(rows, manager.m_keyMap);
    manager.m_keyMap = {{0x10, 1}, {0x41, 2}};
    manager.initKeyMap();
    EXPECT_EQ(rows, manager.m_keyMap);
    manager.initKeyMap();
    EXPECT_EQ(rows, manager.m_keyMap);
}

TEST(KeyMap, LeavesThePressedFlagsAloneWhenItIsFilled)
{
    PlatformUserInputManagerImp manager;
    manager.setKeyPressed(Qt::Key_Space, true);
    manager.initKeyMap();
    EXPECT_EQ(keyDown, manager.getKeyState(VK_SPACE));
}

class OverridingManager : public PlatformUserInputManagerImp
{
public:
    int getKeyState(int virtualKey) override { return virtualKey + 0x70000; }
};

TEST(AsyncKeyState, IsThatOfAnOverrideUnchanged)
{
    OverridingManager manager;
    IPlatformUserInputManager& interface = manager;
    EXPECT_EQ(0x70041, interface.getAsyncKeyState(0x41));
    EXPECT_EQ(0x70000 - 1, interface.getAsyncKeyState(-1));
}

} // namespace
