#include "tests/app/startup/Application.h"
#include "tests/support/Display.h"

#include <QRect>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QRect rect(const QString& text)
{
    const QRegularExpression pattern(R"((-?\d+),(-?\d+) (\d+)x(\d+))");
    const auto match = pattern.match(text);
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
            match.captured(4).toInt()};
}

struct Screens
{
    QStringList server;
    QSize desktop;
};

class Centring : public testing::TestWithParam<Screens>
{
};

// Truncated toward zero, as C++ divides: a window larger than the desktop gets a negative position.
TEST_P(Centring, PutsTheWindowInTheMiddleOfTheVirtualDesktop)
{
    const Display display(GetParam().server, Display::WithoutManager);
    Application application;
    ASSERT_TRUE(application.run());
    const QRect desktop = rect(application.value("desktop"));
    const QRect window = rect(application.value("window"));
    ASSERT_EQ(GetParam().desktop, desktop.size());
    ASSERT_FALSE(window.isEmpty());
    EXPECT_EQ((desktop.width() - window.width()) / 2, window.x());
    EXPECT_EQ((desktop.height() - window.height()) / 2, window.y());
}

INSTANTIATE_TEST_SUITE_P(Rows, Centring,
                         testing::Values(Screens{{"-screen", "0", "1280x800x24"}, {1280, 800}},
                                         Screens{{"-screen", "0", "1919x1079x24"}, {1919, 1079}},
                                         // Smaller than the window, by odd and by even differences.
                                         Screens{{"-screen", "0", "200x101x24"}, {200, 101}},
                                         Screens{{"-screen", "0", "201x100x24"}, {201, 100}},
                                         // Two screens, the second one larger than the primary.
                                         Screens{{"+xinerama", "-extension", "RANDR", "-screen",
                                                  "0", "800x600x24", "-screen", "1",
                                                  "1601x1201x24"},
                                                 {1601, 1201}}));

} // namespace
