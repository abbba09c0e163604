#include "window/RowSortingJob.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

std::vector<int> sorted(const std::vector<SortKey>& keys, Qt::SortOrder order)
{
    RowSortingJob job(
        static_cast<int>(keys.size()),
        [&keys](int record) { return keys[static_cast<std::size_t>(record)]; }, order);
    while (job.step()) {
    }
    return job.order();
}

using Numbers = std::vector<int>;

TEST(RowSortingJob, SortsNumbersByTheirValue)
{
    const std::vector<SortKey> keys = {SortKey::number(10), SortKey::number(9),
                                       SortKey::number(100)};
    EXPECT_EQ(sorted(keys, Qt::AscendingOrder), (Numbers{1, 0, 2}));
    EXPECT_EQ(sorted(keys, Qt::DescendingOrder), (Numbers{2, 0, 1}));
}

TEST(RowSortingJob, SortsTextsWithoutRegardToCase)
{
    const std::vector<SortKey> keys = {SortKey::text("b"), SortKey::text("C"), SortKey::text("A")};
    EXPECT_EQ(sorted(keys, Qt::AscendingOrder), (Numbers{2, 0, 1}));
}

TEST(RowSortingJob, PutsWhatHasNoValueBeforeNumbersAndThoseBeforeTexts)
{
    const std::vector<SortKey> keys = {SortKey::text(""), SortKey::number(-5), SortKey()};
    EXPECT_EQ(sorted(keys, Qt::AscendingOrder), (Numbers{2, 1, 0}));
}

TEST(RowSortingJob, KeepsTheOrderOfWhatComparesEqualBothWays)
{
    const std::vector<SortKey> keys = {SortKey::text("b"), SortKey::text("a"), SortKey::text("B"),
                                       SortKey::text("a")};
    EXPECT_EQ(sorted(keys, Qt::AscendingOrder), (Numbers{1, 3, 0, 2}));
    EXPECT_EQ(sorted(keys, Qt::DescendingOrder), (Numbers{0, 2, 1, 3}));
}

TEST(RowSortingJob, SortsNothing)
{
    EXPECT_EQ(sorted({}, Qt::AscendingOrder), Numbers());
}

// Lengths on both sides of a run's, of two and of an odd number of runs.
TEST(RowSortingJob, SortsTablesOfManyRunsAsAStableSortDoes)
{
    std::mt19937 random(4711);
    for (const int count : {4095, 4096, 4097, 8192, 8193, 20000, 28673}) {
        std::vector<int> values;
        std::vector<SortKey> keys;
        Numbers expected;
        for (int i = 0; i < count; ++i) {
            values.push_back(static_cast<int>(random() % 1000));
            keys.push_back(SortKey::number(values.back()));
            expected.push_back(i);
        }
        std::stable_sort(expected.begin(), expected.end(), [&values](int a, int b) {
            return values[static_cast<std::size_t>(a)] < values[static_cast<std::size_t>(b)];
        });
        EXPECT_TRUE(sorted(keys, Qt::AscendingOrder) == expected) << count;
    }
}

TEST(RowSortingJob, AsksForEachKeyOnce)
{
    int asked = 0;
    const auto keyOf = [&asked](int record) {
        ++asked;
        return SortKey::number(-record);
    };
    RowSortingJob job(10000, keyOf, Qt::AscendingOrder);
    while (job.step()) {
    }
    EXPECT_EQ(asked, 10000);
}

TEST(RowSortingJob, LeavesRecordsThatTakeLongToTheNextStep)
{
    int asked = 0;
    const auto slowKey = [&asked](int) {
        ++asked;
        QElapsedTimer clock;
        clock.start();
        while (clock.nsecsElapsed() < 200000) {
        }
        return SortKey();
    };
    RowSortingJob job(1000, slowKey, Qt::AscendingOrder);
    EXPECT_TRUE(job.step());
    EXPECT_LT(asked, 200);
}

} // namespace
