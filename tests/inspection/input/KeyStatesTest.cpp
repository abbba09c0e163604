#include "inspection/input/KeyStates.h"

#include "inspection/input/WindowSearch.h"
#include "platform/PlatformServicesImp.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace {

TEST(KeyStates, OfUnknownKeysAreNotKnown)
{
    for (const VirtualKey& key : KeyStates::unknownKeys) {
        EXPECT_FALSE(isKnownKey(key.code)) << key.name;
        EXPECT_EQ(key.qtCode, 0) << key.name;
    }
}

TEST(KeyStates, AreAnsweredWithTheirMeaning)
{
    IPlatformUserInputManager* service = g_PlatformServices.userInputManager();
    EXPECT_EQ(KeyStates::answer(VK_RETURN), "getKeyState answers 0: up");
    EXPECT_EQ(KeyStates::answer('A'), "getKeyState answers 0: always up");
    EXPECT_EQ(KeyStates::answer(255), "getKeyState answers 0: always up");
    service->setKeyPressed(Qt::Key_Return, true);
    EXPECT_TRUE(KeyStates::isDown(VK_RETURN));
    EXPECT_EQ(KeyStates::answer(VK_RETURN), "getKeyState answers -32768: down");
    service->setKeyPressed(Qt::Key_Return, false);
    EXPECT_FALSE(KeyStates::isDown(VK_RETURN));
}

TEST(WindowSearch, TakesAnEmptyNameForNull)
{
    QWidget window;
    window.setWindowTitle("Quay");
    EXPECT_EQ(findWindow("", "Quay"), &window);
    EXPECT_EQ(findWindow("QWidget", ""), &window);
    EXPECT_EQ(findWindow("QWidget", "not looked at"), &window);
    EXPECT_EQ(findWindow("Nothing", "Quay"), nullptr);
    EXPECT_NE(findWindow("", ""), nullptr);
}

TEST(WindowSearch, TellsWhatToLookAtWhereNothingWasFound)
{
    int window = 0;
    EXPECT_EQ(searchRemark(&window), "A window was found.");
    EXPECT_EQ(searchRemark(nullptr), "No window was found. Names must match exactly, upper and "
                                     "lower case included.");
}

} // namespace
