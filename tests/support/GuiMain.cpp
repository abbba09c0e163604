#include "tests/support/Display.h"
#include "tests/support/HermeticEnvironment.h"
#include "tests/support/MessageGuard.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <optional>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const HermeticEnvironment environment;
    std::optional<Display> display;
    if (QUAYSIDE_TEST_XVFB)
        display.emplace();
    else
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    installMessageGuard();
    return RUN_ALL_TESTS();
}
