#include "window/WindowSize.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

constexpr int titleBar = 30;
constexpr int edge = 5;
constexpr QSize wanted(990, 660);

/// A screen, and what of it panels leave.
struct Desk
{
    const char* name;
    QRect desktop;
    QRect available;
};

void PrintTo(const Desk& desk, std::ostream* out)
{
    *out << desk.name;
}

// As start-up does it: without regard to the frame, whose corner is what is moved.
QRect frameAfterCentring(const QRect& desktop, const QSize& window)
{
    const QPoint corner((desktop.width() - window.width()) / 2,
                        (desktop.height() - window.height()) / 2);
    return {corner, window + QSize(2 * edge, titleBar + edge)};
}

class FirstWindow : public testing::TestWithParam<Desk>
{
};

TEST_P(FirstWindow, StandsOnTheScreenWithItsFrame)
{
    const auto& [name, desktop, available] = GetParam();
    const QSize size = firstWindowSize(wanted, desktop, available, titleBar, edge);
    EXPECT_TRUE(available.contains(frameAfterCentring(desktop, size)))
        << size.width() << " x " << size.height();
    EXPECT_EQ(size.expandedTo(smallestWindow), size);
    EXPECT_EQ(size.boundedTo(wanted), size);
}

INSTANTIATE_TEST_SUITE_P(
    , FirstWindow,
    testing::Values(Desk{"BelowAPanel", {0, 0, 800, 600}, {0, 40, 800, 560}},
                    Desk{"AboveAPanel", {0, 0, 800, 600}, {0, 0, 800, 570}},
                    Desk{"AboveAPanelOnAWideScreen", {0, 0, 1024, 600}, {0, 0, 1024, 570}},
                    Desk{"OnAScreenAtTwoHundredPercent", {0, 0, 960, 540}, {0, 0, 960, 540}},
                    Desk{"BesideADock", {0, 0, 1280, 800}, {60, 0, 1220, 800}},
                    Desk{"OnALargeScreen", {0, 0, 3840, 2160}, {0, 0, 3840, 2120}}),
    [](const auto& desk) { return desk.param.name; });

TEST(WindowSize, IsWhatIsWantedWhereThereIsRoom)
{
    const QRect screen(0, 0, 1920, 1080);
    EXPECT_EQ(firstWindowSize(wanted, screen, screen, titleBar, edge), wanted);
}

TEST(WindowSize, IsNeverSmallerThanTheSmallestWindow)
{
    const QRect screen(0, 0, 640, 400);
    EXPECT_EQ(firstWindowSize(wanted, screen, screen, titleBar, edge), smallestWindow);
}

} // namespace
