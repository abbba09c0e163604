#include "inspection/JobRunner.h"
#include "tests/support/WaitFor.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace {

// A job whose step is given as a function, and may say that the next one is long.
class FunctionJob : public Job
{
public:
    explicit FunctionJob(std::function<bool()> step) : m_step(std::move(step)) {}

    bool step() override
    {
        m_isNextLong = false;
        return m_step();
    }
    bool isNextStepLong() const override { return m_isNextLong; }
    void announceLongStep() { m_isNextLong = true; }

private:
    std::function<bool()> m_step;
    bool m_isNextLong = false;
};

// Counted in steps that sleep for a millisecond at least: a slow machine does fewer of them in a
// slice, never more.
TEST(JobRunner, NoSliceTakesMoreThanThirtyMilliseconds)
{
    constexpr int steps = 400;
    constexpr int most = 30;
    JobRunner runner;
    int count = 0;
    std::vector<int> slices;
    int counted = 0;
    const auto endSlice = [&] { slices.push_back(count - std::exchange(counted, count)); };
    QObject::connect(&runner, &JobRunner::progressed, endSlice);
    QSignalSpy finished(&runner, &JobRunner::finished);
    FunctionJob job([&count] {
        QTest::qSleep(1);
        return ++count < steps;
    });
    ASSERT_FALSE(runner.start(job));
    endSlice();
    ASSERT_TRUE(waitFor([&finished] { return !finished.isEmpty(); }));
    endSlice();
    EXPECT_EQ(count, steps);
    EXPECT_LE(*std::max_element(slices.begin(), slices.end()), most);
    EXPECT_GE(slices.size(), static_cast<std::size_t>(steps / most));
}

TEST(JobRunner, GivesALongStepASliceOfItsOwn)
{
    JobRunner runner;
    std::vector<int> slices;
    int steps = 0;
    QObject::connect(&runner, &JobRunner::progressed, [&] { slices.push_back(steps); });
    QSignalSpy finished(&runner, &JobRunner::finished);
    FunctionJob job([&] {
        ++steps;
        if (steps == 2 || steps == 3)
            job.announceLongStep();
        return steps < 6;
    });
    ASSERT_FALSE(runner.start(job));
    EXPECT_EQ(steps, 2);
    ASSERT_TRUE(waitFor([&finished] { return !finished.isEmpty(); }));
    EXPECT_EQ(slices, std::vector<int>({3}));
    EXPECT_EQ(steps, 6);
}

// Whoever waits for the end may have much to do then.
TEST(JobRunner, FinishesInATurnOfTheEventLoopOfItsOwn)
{
    JobRunner runner;
    int steps = 0;
    QSignalSpy finished(&runner, &JobRunner::finished);
    FunctionJob job([&] {
        job.announceLongStep();
        return ++steps < 2;
    });
    ASSERT_FALSE(runner.start(job));
    while (steps < 2)
        QCoreApplication::processEvents();
    EXPECT_TRUE(finished.isEmpty());
    EXPECT_TRUE(runner.isRunning());
    ASSERT_TRUE(finished.wait());
    EXPECT_FALSE(runner.isRunning());
    EXPECT_EQ(steps, 2);
}

TEST(JobRunner, TellsWhenNothingIsLeftToCancel)
{
    JobRunner runner;
    int steps = 0;
    QSignalSpy finished(&runner, &JobRunner::finished);
    FunctionJob job([&] {
        job.announceLongStep();
        return ++steps < 2;
    });
    ASSERT_FALSE(runner.start(job));
    EXPECT_FALSE(runner.cancel());
    steps = 0;
    ASSERT_FALSE(runner.start(job));
    while (steps < 2)
        QCoreApplication::processEvents();
    EXPECT_TRUE(runner.cancel());
    EXPECT_FALSE(runner.isRunning());
    EXPECT_FALSE(finished.wait(50));
}

} // namespace
