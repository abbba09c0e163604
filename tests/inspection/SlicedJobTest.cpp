#include "inspection/SlicedJob.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// Counted in steps that sleep for a millisecond at least: a slow machine does fewer of them in a
// slice, never more.
TEST(SlicedJob, NoSliceTakesMoreThanThirtyMilliseconds)
{
    constexpr int steps = 400;
    constexpr int most = 30;
    SlicedJob job;
    int count = 0;
    std::vector<int> slices;
    int counted = 0;
    const auto endSlice = [&] { slices.push_back(count - std::exchange(counted, count)); };
    QObject::connect(&job, &SlicedJob::progressed, endSlice);
    QSignalSpy finished(&job, &SlicedJob::finished);
    const bool done = job.start([&count] {
        QTest::qSleep(1);
        return ++count < steps;
    });
    ASSERT_FALSE(done);
    endSlice();
    ASSERT_TRUE(QTest::qWaitFor([&finished] { return !finished.isEmpty(); }, 60000));
    endSlice();
    EXPECT_EQ(count, steps);
    EXPECT_LE(*std::max_element(slices.begin(), slices.end()), most);
    EXPECT_GE(slices.size(), static_cast<std::size_t>(steps / most));
}

TEST(SlicedJob, GivesTheStepAfterEndSliceASliceOfItsOwn)
{
    SlicedJob job;
    std::vector<int> slices;
    int steps = 0;
    QObject::connect(&job, &SlicedJob::progressed, [&] { slices.push_back(steps); });
    QSignalSpy finished(&job, &SlicedJob::finished);
    const auto step = [&] {
        ++steps;
        if (steps == 2 || steps == 3)
            job.endSlice();
        return steps < 6;
    };
    ASSERT_FALSE(job.start(step));
    EXPECT_EQ(steps, 2);
    ASSERT_TRUE(QTest::qWaitFor([&finished] { return !finished.isEmpty(); }));
    EXPECT_EQ(slices, std::vector<int>({3}));
    EXPECT_EQ(steps, 6);
}

// Whoever waits for the end may have much to do then.
TEST(SlicedJob, FinishesInATurnOfTheEventLoopOfItsOwn)
{
    SlicedJob job;
    int steps = 0;
    QSignalSpy finished(&job, &SlicedJob::finished);
    ASSERT_FALSE(job.start([&] {
        job.endSlice();
        return ++steps < 2;
    }));
    while (steps < 2)
        QCoreApplication::processEvents();
    EXPECT_TRUE(finished.isEmpty());
    EXPECT_TRUE(job.isRunning());
    ASSERT_TRUE(finished.wait());
    EXPECT_FALSE(job.isRunning());
    EXPECT_EQ(steps, 2);
}

TEST(SlicedJob, TellsWhenNothingIsLeftToCancel)
{
    SlicedJob job;
    int steps = 0;
    QSignalSpy finished(&job, &SlicedJob::finished);
    const auto step = [&] {
        job.endSlice();
        return ++steps < 2;
    };
    ASSERT_FALSE(job.start(step));
    EXPECT_FALSE(job.cancel());
    steps = 0;
    ASSERT_FALSE(job.start(step));
    while (steps < 2)
        QCoreApplication::processEvents();
    EXPECT_TRUE(job.cancel());
    EXPECT_FALSE(job.isRunning());
    EXPECT_FALSE(finished.wait(50));
}

} // namespace
