#include "app/pages/SlicedJob.h"

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

} // namespace
