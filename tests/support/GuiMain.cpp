#include "tests/support/Display.h"
#include "tests/support/HermeticEnvironment.h"
#include "tests/support/MessageGuard.h"

#include <QApplication>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <optional>

namespace {

// A window manager that is still starting takes windows without activating them, so the first ones
// are shown until one becomes active.
void waitForActivation()
{
    for (int attempt = 0; attempt < 40; ++attempt) {
        QWidget window;
        window.show();
        if (QTest::qWaitForWindowActive(&window, 500))
            return;
    }
    qFatal("the window manager activates nothing");
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const HermeticEnvironment environment;
    std::optional<Display> display;
    if (QUAYSIDE_TEST_XVFB)
        display.emplace(QStringList{"-screen", "0",
                                    qEnvironmentVariable("QUAYSIDE_TEST_SCREEN", "1280x800x24")});
    else
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (QUAYSIDE_TEST_XVFB)
        waitForActivation();
    installMessageGuard();
    return RUN_ALL_TESTS();
}
