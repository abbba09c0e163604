#pragma once

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

/// Five minutes: long enough for a machine with too much to do, so that only what never comes about
/// fails.
constexpr int waitMilliseconds = 300000;

/// Lets the event loop turn until `condition()` is true; false when it never is.
template <typename Condition>
[[nodiscard]] bool waitFor(Condition condition)
{
    return QTest::qWaitFor(condition, waitMilliseconds);
}

/// Waits until `actual()` equals what is expected; a failure names what it is instead.
template <typename Actual, typename Expected>
[[nodiscard]] testing::AssertionResult becomes(Actual actual, const Expected& expected)
{
    if (waitFor([&] { return actual() == expected; }))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "is " << testing::PrintToString(actual()) << ", not "
                                       << testing::PrintToString(expected);
}

/// Waits until a window is on the screen.
[[nodiscard]] inline bool waitForExposed(QWidget* window)
{
    return QTest::qWaitForWindowExposed(window, waitMilliseconds);
}

/// Waits until a window has the keyboard.
[[nodiscard]] inline bool waitForActive(QWidget* window)
{
    return QTest::qWaitForWindowActive(window, waitMilliseconds);
}

/// Waits until no job of a page runs.
template <typename Page>
[[nodiscard]] bool waitForJob(const Page& page)
{
    return waitFor([&page] { return !page.isBusy(); });
}
