#pragma once

#include <QTest>
#include <QWidget>

/// Lets the event loop turn until `condition()` is true, or false after five minutes: long enough
/// for a machine with too much to do, so that only what never comes about fails.
template <typename Condition>
[[nodiscard]] bool waitFor(Condition condition)
{
    constexpr int limit = 300000;
    return QTest::qWaitFor(condition, limit);
}

/// Waits until no job of a page runs.
template <typename Page>
[[nodiscard]] bool waitForJob(const Page& page)
{
    return waitFor([&page] { return !page.isBusy(); });
}
