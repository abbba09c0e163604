#include "tests/pages/PageFixture.h"

#include "pages/displays/MonitorMap.h"
#include "pages/input/KeyLamp.h"
#include "tests/support/Display.h"
#include "tests/support/WaitFor.h"

#include <QKeyEvent>
#include <QSet>

namespace {

// The keys that were pressed in the window since.
class PressedKeys : public QObject
{
public:
    PressedKeys() { QApplication::instance()->installEventFilter(this); }

    bool has(int key) const { return m_keys.contains(key); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress)
            m_keys.insert(static_cast<const QKeyEvent*>(event)->key());
        return false;
    }

private:
    QSet<int> m_keys;
};

class RealInputTest : public PageFixture
{
protected:
    void openActive(const QString& name)
    {
        open(name);
        m_window.activateWindow();
        ASSERT_TRUE(waitForActive(&m_window));
    }

    bool becomesLit(const QString& name, bool lit)
    {
        return waitFor([this, name, lit] { return control<KeyLamp>(name)->isLit() == lit; });
    }
};

TEST_F(RealInputTest, LampsFollowModifiersAndTellNoSides)
{
    openActive("input");
    const std::pair<const char*, QStringList> rows[] = {
        {"shift", {"VK_SHIFT", "VK_LSHIFT", "VK_RSHIFT"}},
        {"ctrl", {"VK_CONTROL", "VK_LCONTROL", "VK_RCONTROL"}},
        {"alt", {"VK_MENU", "VK_LMENU", "VK_RMENU"}},
    };
    // The event of a modifier's own press still tells the state before; the next event tells it.
    QPoint place = m_window.mapToGlobal(m_window.rect().center());
    const auto moveMouse = [&place] {
        place.rx() += 1;
        return Display::xdotool(
            {"mousemove", QString::number(place.x()), QString::number(place.y())});
    };
    ASSERT_TRUE(moveMouse());
    for (const auto& [key, lamps] : rows) {
        ASSERT_TRUE(Display::xdotool({"keydown", key}) && moveMouse());
        for (const QString& lamp : lamps)
            EXPECT_TRUE(becomesLit(lamp, true)) << lamp.toStdString();
        ASSERT_TRUE(Display::xdotool({"keyup", key}) && moveMouse());
        for (const QString& lamp : lamps)
            EXPECT_TRUE(becomesLit(lamp, false)) << lamp.toStdString();
    }
}

TEST_F(RealInputTest, LampsFollowTheMouseButtons)
{
    openActive("input");
    const QPoint place = control<KeyLamp>("VK_F12")->mapToGlobal({2, 2});
    ASSERT_TRUE(
        Display::xdotool({"mousemove", QString::number(place.x()), QString::number(place.y())}));
    const std::pair<const char*, const char*> rows[] = {
        {"1", "VK_LBUTTON"}, {"2", "VK_MBUTTON"}, {"3", "VK_RBUTTON"}};
    for (const auto& [number, lamp] : rows) {
        ASSERT_TRUE(Display::xdotool({"mousedown", number}));
        EXPECT_TRUE(becomesLit(lamp, true)) << lamp;
        ASSERT_TRUE(Display::xdotool({"mouseup", number}));
        EXPECT_TRUE(becomesLit(lamp, false)) << lamp;
    }
}

TEST_F(RealInputTest, ALetterLeavesEveryLampDark)
{
    openActive("input");
    control<KeyLamp>("VK_SHIFT"); // the page is there
    const PressedKeys pressed;
    ASSERT_TRUE(Display::xdotool({"keydown", "a"}) && Display::xdotool({"keydown", "b"}));
    EXPECT_TRUE(waitFor([&pressed] { return pressed.has(Qt::Key_B); })); // so "a" was delivered
    EXPECT_TRUE(pressed.has(Qt::Key_A));
    page()->refresh();
    const auto all = page()->findChildren<KeyLamp*>();
    for (const KeyLamp* lamp : all)
        EXPECT_FALSE(lamp->isLit()) << lamp->accessibleName().toStdString();
    ASSERT_TRUE(Display::xdotool({"keyup", "a"}) && Display::xdotool({"keyup", "b"}));
}

TEST_F(RealInputTest, TheMapFollowsThePointer)
{
    openActive("displays");
    ASSERT_TRUE(Display::xdotool({"mousemove", "321", "123"}));
    EXPECT_TRUE(waitFor([this] { return control<QLineEdit>("Pointer")->text() == "321, 123"; }));
}

TEST_F(RealInputTest, EncryptsAndDecryptsByKeyboardAlone)
{
    openActive("crypto");
    ASSERT_TRUE(Display::xdotool({"type", "secret"}));
    ASSERT_TRUE(Display::xdotool({"key", "alt+x"}));
    ASSERT_TRUE(Display::xdotool({"type", "hello quay"}));
    ASSERT_TRUE(Display::xdotool({"key", "alt+n"}));
    auto* cipher = control<QPlainTextEdit>("Base64 of the cipher text");
    ASSERT_TRUE(waitFor([cipher] { return !cipher->toPlainText().isEmpty(); }));
    auto* clear = control<QPlainTextEdit>("Clear text");
    clear->clear();
    ASSERT_TRUE(Display::xdotool({"key", "alt+t"}));
    EXPECT_TRUE(waitFor([clear] { return clear->toPlainText() == "hello quay"; }));
}

} // namespace
