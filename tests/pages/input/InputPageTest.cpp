#include "tests/pages/PageFixture.h"

#include "pages/input/KeyLamp.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/WaitFor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QSpinBox>

namespace {

class InputPageTest : public PageFixture
{
protected:
    void SetUp() override { open("input"); }

    std::string label(const QString& name)
    {
        return control<QLineEdit>(name)->text().toStdString();
    }
    bool isLit(const QString& name) { return control<KeyLamp>(name)->isLit(); }

    void setCursor(const QString& shape)
    {
        control<QComboBox>("Shape of the cursor")->setCurrentText(shape);
        press("S&etCursor");
    }

    std::string found(const QString& className, const QString& windowName)
    {
        control<QLineEdit>("Class name:")->setText(className);
        control<QLineEdit>("Window name:")->setText(windowName);
        press("Find &now");
        return page()->findChild<QLabel*>("result")->text().toStdString();
    }
};

TEST_F(InputPageTest, HasALampForEveryKeyThatTheServiceKnows)
{
    std::vector<int> lamps;
    const auto all = page()->findChildren<KeyLamp*>();
    for (const KeyLamp* lamp : all)
        lamps.push_back(lamp->code());
    for (const int code :
         {0x10, 0xA0, 0xA1, 0x11, 0xA2, 0xA3, 0x12, 0xA4, 0xA5, 1, 2, 4, 0x0D, 0x20}) {
        EXPECT_TRUE(isKnownKey(code)) << code;
        EXPECT_EQ(std::count(lamps.begin(), lamps.end(), code), 1) << code;
    }
    EXPECT_EQ(knownKeys.size(), 14U);
}

TEST_F(InputPageTest, HasTheLampOfTheMiddleButtonBetweenTheOthers)
{
    const QPoint left = control<KeyLamp>("VK_LBUTTON")->pos();
    const QPoint middle = control<KeyLamp>("VK_MBUTTON")->pos();
    const QPoint right = control<KeyLamp>("VK_RBUTTON")->pos();
    EXPECT_LT(left.y(), middle.y());
    EXPECT_LT(middle.y(), right.y());
}

TEST_F(InputPageTest, LampsFollowWhatTheHostLibraryReports)
{
    IPlatformUserInputManager* service = g_PlatformServices.userInputManager();
    EXPECT_FALSE(isLit("VK_RETURN"));
    service->setKeyPressed(Qt::Key_Return, true);
    EXPECT_TRUE(waitFor([this] { return isLit("VK_RETURN"); }));
    EXPECT_FALSE(isLit("VK_SPACE"));
    service->setKeyPressed(Qt::Key_Return, false);
    EXPECT_TRUE(waitFor([this] { return !isLit("VK_RETURN"); }));
}

// Long before the lamps are asked for again by time.
TEST_F(InputPageTest, LampsFollowAnEventAsSoonAsItHasBeenDelivered)
{
    QElapsedTimer time;
    bool lit = false;
    bool dark = false;
    int attempts = 20; // a machine that is slower than the timer tells nothing
    do {
        QTest::qWait(120);
        time.start();
        QTest::keyPress(&m_window, Qt::Key_A, Qt::ShiftModifier);
        QCoreApplication::processEvents();
        lit = isLit("VK_SHIFT") && isLit("VK_RSHIFT");
        QTest::keyRelease(&m_window, Qt::Key_A);
        QCoreApplication::processEvents();
        dark = !isLit("VK_SHIFT");
    } while (time.elapsed() > 40 && --attempts > 0);
    EXPECT_TRUE(lit);
    EXPECT_TRUE(dark);
}

TEST_F(InputPageTest, LampsAreReachedByKeyboardAndAreOneStopForTab)
{
    const auto stops = [this] {
        int count = 0;
        for (const KeyLamp* lamp : page()->findChildren<KeyLamp*>())
            count += (lamp->focusPolicy() & Qt::TabFocus) != 0 ? 1 : 0;
        return count;
    };
    EXPECT_EQ(stops(), 2); // the known keys, and the others
    control<KeyLamp>("VK_SHIFT")->setFocus();
    const std::pair<Qt::Key, const char*> steps[] = {
        {Qt::Key_Down, "VK_LSHIFT"}, {Qt::Key_Right, "VK_LCONTROL"}, {Qt::Key_Up, "VK_CONTROL"},
        {Qt::Key_Left, "VK_SHIFT"},  {Qt::Key_Left, "VK_SHIFT"},     {Qt::Key_End, "VK_SPACE"},
        {Qt::Key_Down, "VK_SPACE"},  {Qt::Key_Home, "VK_SHIFT"}};
    for (const auto& [key, lamp] : steps) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(QApplication::focusWidget()->accessibleName(), lamp);
    }
    QTest::mouseClick(control<KeyLamp>("VK_F12"), Qt::LeftButton);
    EXPECT_TRUE(control<KeyLamp>("VK_F12")->hasFocus());
    EXPECT_EQ(stops(), 2);
}

TEST_F(InputPageTest, ShowsWhichLampHasTheKeyboard)
{
    auto* lamp = control<KeyLamp>("VK_LMENU");
    const QImage without = lamp->grab().toImage();
    lamp->setFocus();
    EXPECT_NE(lamp->grab().toImage(), without);
}

TEST_F(InputPageTest, ReportsReturnAndSpaceToTheService)
{
    IPlatformUserInputManager* service = g_PlatformServices.userInputManager();
    const std::pair<const char*, int> rows[] = {{"Re&turn down", VK_RETURN},
                                                {"&Space down", VK_SPACE}};
    for (const auto& [caption, code] : rows) {
        button<QCheckBox>(caption)->setChecked(true);
        EXPECT_EQ(service->getKeyState(code), -32768) << caption;
        button<QCheckBox>(caption)->setChecked(false);
        EXPECT_EQ(service->getKeyState(code), 0) << caption;
    }
}

TEST_F(InputPageTest, ReleasesTheKeysThatItReportedWhenItGoes)
{
    IPlatformUserInputManager* service = g_PlatformServices.userInputManager();
    button<QCheckBox>("Re&turn down")->setChecked(true);
    button<QCheckBox>("&Space down")->setChecked(true);
    delete page();
    EXPECT_EQ(service->getKeyState(VK_RETURN), 0);
    EXPECT_EQ(service->getKeyState(VK_SPACE), 0);
    service->setKeyPressed(Qt::Key_Return, false);
    service->setKeyPressed(Qt::Key_Space, false);
}

TEST_F(InputPageTest, SaysWhichCodesAlwaysReadAsUp)
{
    const std::pair<int, const char*> rows[] = {
        {0x41, "getKeyState answers 0: always up"},
        {255, "getKeyState answers 0: always up"},
        {VK_SHIFT, "getKeyState answers 0: up"},
    };
    for (const auto& [code, text] : rows) {
        control<QSpinBox>("Code of a virtual key")->setValue(code);
        EXPECT_EQ(label("State"), text) << code;
    }
}

TEST_F(InputPageTest, ShowsThePointerOnTheScreenAndInTheWindow)
{
    QCursor::setPos(200, 150);
    const QPoint inside = m_window.mapFromGlobal({200, 150});
    ASSERT_TRUE(waitFor([this] { return label("GetCursorPos (screen):") == "200, 150"; }));
    EXPECT_EQ(label("ScreenToClient (window):"),
              QStringLiteral("%1, %2").arg(inside.x()).arg(inside.y()).toStdString());
}

TEST_F(InputPageTest, SetsTheOverrideCursorAndTakesItBack)
{
    EXPECT_EQ(label("GetCursor (override):"), "null: none is set");
    setCursor("Wait");
    setCursor("Cross");
    EXPECT_EQ(label("GetCursor (override):"), "Cross");
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::CrossCursor);
    EXPECT_EQ(status(), "Levels added from here: 2.");
    press("Ta&ke back");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(label("GetCursor (override):"), "null: none is set");
}

TEST_F(InputPageTest, SettingANullCursorChangesNothing)
{
    setCursor("null");
    EXPECT_EQ(status(), "SetCursor with null changes nothing.");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(InputPageTest, TakesItsLevelsBackWhenItGoes)
{
    setCursor("Wait");
    delete page();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(InputPageTest, FindsWindows)
{
    const std::string address =
        QString::number(reinterpret_cast<quintptr>(&m_window), 16).toStdString();
    const std::string window = "MainWindow, title \u201cQuayside\u201d, at 0x" + address;
    EXPECT_EQ(found("MainWindow", ""), window);
    EXPECT_EQ(found("", "Quayside"), window);
    EXPECT_EQ(found("MainWindow", "not looked at"), window);
    EXPECT_EQ(status(), "A window was found.");
}

TEST_F(InputPageTest, ShowsATitleWithPlaceholders)
{
    m_window.setWindowTitle("%1 %2 %3");
    EXPECT_NE(found("MainWindow", "").find("title \u201c%1 %2 %3\u201d"), std::string::npos);
}

TEST_F(InputPageTest, SaysThatNoWindowWasFound)
{
    const std::pair<const char*, const char*> rows[] = {
        {"mainwindow", ""}, {"", "quayside"}, {"Nothing", "Quayside"}};
    for (const auto& [className, windowName] : rows) {
        EXPECT_EQ(found(className, windowName), "null: no window was found");
        EXPECT_EQ(status(), "No window was found. Names must match exactly, upper and lower case "
                            "included.");
        EXPECT_FALSE(page()->findChild<QLabel*>("statusIcon")->isVisible()) << "no fault";
    }
}

TEST_F(InputPageTest, FindPutsTheKeyboardIntoTheClassName)
{
    QTest::keyClick(&m_window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), control<QLineEdit>("Class name:"));
}

} // namespace
