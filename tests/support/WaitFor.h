#pragma once

#include <QTest>
#include <QWidget>

/// Five minutes: long enough for a machine with too much to do, so that only what never comes about
/// fails.
constexpr int waitMilliseconds = 300000;

/// Lets the event loop turn until `condition()` is true; false when it never is.
template <typename Condition>
[[nodiscard]] bool waitFor(Condition condition)
{
    return QTest::qWaitFor(condition, waitMilliseconds);
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
