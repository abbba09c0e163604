#include "platform/PlatformResourceManagerImp.h"

#include "tests/platform/graphics/VirtualScreen.h"
#include "tests/support/CanaryRecord.h"

#include <QGuiApplication>
#include <QScreen>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

constexpr LONG least = std::numeric_limits<LONG>::min();
constexpr LONG greatest = std::numeric_limits<LONG>::max();
constexpr UINT allFlags[] = {0, 1, 2, 3, 4, 0x80000000, ~0U};

HMONITOR monitorFromPoint(LONG x, LONG y, UINT flags)
{
    return PlatformResourceManagerImp().MonitorFromPoint({x, y}, flags);
}

// Before main there is no application yet, and so there are no screens.
const bool anyMonitorBeforeMain =
    std::any_of(std::begin(allFlags), std::end(allFlags),
                [](UINT flags) { return monitorFromPoint(0, 0, flags) != nullptr; });

// The offscreen platform's own screen is at (0, 0) and of 800 by 600 pixels.
class Screens : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(1, QGuiApplication::screens().size());
        ASSERT_EQ(QRect(0, 0, 800, 600), first->geometry());
    }

    HMONITOR nearest(LONG x, LONG y) { return monitorFromPoint(x, y, MONITOR_DEFAULTTONEAREST); }

    QScreen* const first = QGuiApplication::primaryScreen();
};

TEST(NoScreens, GiveNoMonitor)
{
    EXPECT_FALSE(anyMonitorBeforeMain);
}

TEST_F(Screens, AreFoundByAPointInsideWhateverTheFlags)
{
    const VirtualScreen second(QRect(-500, 100, 300, 200));
    for (const UINT flags : allFlags) {
        EXPECT_EQ(first, monitorFromPoint(0, 0, flags));
        EXPECT_EQ(first, monitorFromPoint(799, 599, flags));
        EXPECT_EQ(second.screen(), monitorFromPoint(-500, 100, flags));
        EXPECT_EQ(second.screen(), monitorFromPoint(-201, 299, flags));
    }
}

TEST_F(Screens, AreNotFoundByAPointOutsideForOtherFlags)
{
    for (const UINT flags : {0U, 3U, 4U, 0x80000000U, 0x80000002U, ~0U})
        EXPECT_EQ(nullptr, monitorFromPoint(800, 400, flags)) << flags;
}

TEST_F(Screens, DefaultToThePrimaryOne)
{
    const VirtualScreen second(QRect(1000, 0, 300, 200));
    EXPECT_EQ(first, monitorFromPoint(1300, 100, MONITOR_DEFAULTTOPRIMARY));
    const VirtualScreen third(QRect(2000, 0, 300, 200), QRect(), true);
    EXPECT_EQ(third.screen(), monitorFromPoint(1300, 100, MONITOR_DEFAULTTOPRIMARY));
}

TEST_F(Screens, AreNearestToAnyPointWhenThereIsOnlyOne)
{
    for (const QPoint& point : {QPoint(-1, 400), QPoint(800, 400), QPoint(400, -1),
                                QPoint(400, 600), QPoint(-7000, -7000), QPoint(7000, 7000)})
        EXPECT_EQ(first, nearest(point.x(), point.y()));
}

TEST_F(Screens, AreNearestByEachOfTheirEdges)
{
    const VirtualScreen second(QRect(10000, 10000, 500, 500));
    for (const QPoint& point :
         {QPoint(9999, 5000), QPoint(10500, 5000), QPoint(5000, 9999), QPoint(5000, 10500)})
        EXPECT_EQ(second.screen(), nearest(point.x(), point.y()));
}

TEST_F(Screens, AreMeasuredByTheirEdgeLinesNotTheirAreas)
{
    // 1 pixel from the line along the first screen's bottom edge, yet 701 from that screen and only
    // 500 from the second.
    const VirtualScreen second(QRect(2000, 0, 100, 3000));
    EXPECT_EQ(first, nearest(1500, 598));
}

TEST_F(Screens, AreMeasuredToTheLastPixelInside)
{
    // The first screen's right edge is at 799, one pixel away; the second's top edge is met.
    const VirtualScreen second(QRect(-100, 400, 50, 50));
    EXPECT_EQ(second.screen(), nearest(800, 400));
}

TEST_F(Screens, ThatAreEquallyNearGiveTheFirst)
{
    const VirtualScreen second(QRect(2000, 0, 800, 600));
    const VirtualScreen third(QRect(4000, 0, 800, 600));
    EXPECT_EQ(first, nearest(3400, -7));
    EXPECT_EQ(second.screen(), nearest(2804, 290));
}

struct FarRow
{
    LONG x;
    LONG y;
    bool found;
};

// A distance of 0x7FFFFFFF or more is no distance at all.
constexpr FarRow farRows[] = {
    {least, least, false},
    {least + 1, least + 1, false},
    {least + 2, least + 2, true},
    {least, 5, true},
    {-9, least, true},
    {least, greatest, true},
    {greatest, greatest, true},
    {greatest, least, true},
    {least, least + 2, true},
};

TEST_F(Screens, AreMeasuredWithoutOverflow)
{
    for (const FarRow& row : farRows)
        EXPECT_EQ(row.found ? first : nullptr, nearest(row.x, row.y)) << row.x << ' ' << row.y;
}

TEST_F(Screens, BeyondAnyOverflowAreComparedTruly)
{
    // 2147484646 from the second screen's nearest edges: more than any 32-bit number.
    const VirtualScreen second(QRect(1000, 1000, 10, 10));
    EXPECT_EQ(nullptr, nearest(least, least));
    EXPECT_EQ(first, nearest(least + 2, least + 2));
    EXPECT_EQ(second.screen(), nearest(greatest, greatest));
}

class MonitorInfo : public Screens
{
protected:
    // Describes the monitor into a guarded record and compares all of it.
    static void expectInfo(QScreen* monitor, const MONITORINFO& expected)
    {
        CanaryRecord<MONITORINFO> record;
        EXPECT_EQ(1, PlatformResourceManagerImp().GetMonitorInfoW(monitor, record.get()));
        record.expect(expected);
    }

    static constexpr DWORD cbSizeUntouched = 0x5A5A5A5A;
};

TEST_F(MonitorInfo, EndsOnTheLastPixelAndLeavesCbSizeAlone)
{
    expectInfo(first, {cbSizeUntouched, {0, 0, 799, 599}, {0, 0, 799, 599}, MONITORINFOF_PRIMARY});
}

TEST_F(MonitorInfo, TellsTheWorkAreaOfASecondScreen)
{
    const VirtualScreen second(QRect(-1280, -100, 1280, 1024), QRect(-1280, -70, 1200, 994));
    expectInfo(second.screen(),
               {cbSizeUntouched, {-1280, -100, -1, 923}, {-1280, -70, -81, 923}, 0});
    expectInfo(first, {cbSizeUntouched, {0, 0, 799, 599}, {0, 0, 799, 599}, MONITORINFOF_PRIMARY});
}

TEST_F(MonitorInfo, FollowsAChangeOfThePrimaryScreen)
{
    const VirtualScreen second(QRect(800, 0, 640, 480), QRect(), true);
    expectInfo(second.screen(),
               {cbSizeUntouched, {800, 0, 1439, 479}, {800, 0, 1439, 479}, MONITORINFOF_PRIMARY});
    expectInfo(first, {cbSizeUntouched, {0, 0, 799, 599}, {0, 0, 799, 599}, 0});
}

TEST_F(MonitorInfo, NeedsAMonitorAndARecord)
{
    PlatformResourceManagerImp manager;
    CanaryRecord<MONITORINFO> record;
    EXPECT_EQ(0, manager.GetMonitorInfoW(nullptr, record.get()));
    record.expectUntouched();
    EXPECT_EQ(0, manager.GetMonitorInfoW(first, nullptr));
    EXPECT_EQ(0, manager.GetMonitorInfoW(nullptr, nullptr));
}

using SystemMetrics = Screens;

TEST_F(SystemMetrics, AreThePrimaryScreensSize)
{
    const VirtualScreen second(QRect(800, 0, 640, 480));
    PlatformResourceManagerImp manager;
    EXPECT_EQ(800, manager.GetSystemMetrics(SM_CXFULLSCREEN));
    EXPECT_EQ(600, manager.GetSystemMetrics(SM_CYFULLSCREEN));
}

TEST_F(SystemMetrics, FollowAChangeOfThePrimaryScreen)
{
    const VirtualScreen second(QRect(800, 0, 640, 480), QRect(800, 20, 640, 460), true);
    PlatformResourceManagerImp manager;
    EXPECT_EQ(640, manager.GetSystemMetrics(16));
    EXPECT_EQ(480, manager.GetSystemMetrics(17));
}

TEST_F(SystemMetrics, AreZeroForEverythingElse)
{
    PlatformResourceManagerImp manager;
    for (int index = -2; index < 256; ++index) {
        if (index == 16 || index == 17)
            continue;
        EXPECT_EQ(0, manager.GetSystemMetrics(index)) << index;
    }
    for (const int index : {0x1000, 0x10010, least, greatest})
        EXPECT_EQ(0, manager.GetSystemMetrics(index)) << index;
}

} // namespace
