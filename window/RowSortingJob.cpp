#include "window/RowSortingJob.h"

#include <QElapsedTimer>

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr qint64 keyMilliseconds = 4; // for the keys that one step makes
constexpr int fewKeys = 64;           // that a step makes whatever time they take
constexpr int runLength = 4096;       // records that one step sorts: about 2 ms

} // namespace

RowSortingJob::RowSortingJob(int count, KeyOf keyOf, Qt::SortOrder order)
    : m_keyOf(std::move(keyOf)),
      m_direction(order),
      m_order(static_cast<std::size_t>(count)),
      m_run(runLength)
{
    std::iota(m_order.begin(), m_order.end(), 0);
    m_keys.reserve(m_order.size());
}

// Merge sort from the bottom up. A table that is no longer than one run is sorted in one step,
// which spares its readers a turn of the event loop in the old order.
bool RowSortingJob::step()
{
    const auto count = static_cast<int>(m_order.size());
    if (!makeKeys())
        return true;
    if (m_sorted < count)
        sortRun();
    else if (m_run < count)
        mergeRuns();
    return m_sorted < count || m_run < count;
}

bool RowSortingJob::makeKeys()
{
    QElapsedTimer clock;
    clock.start();
    for (int made = 0; m_keys.size() < m_order.size(); ++made) {
        if (made >= fewKeys && clock.elapsed() >= keyMilliseconds)
            return false;
        m_keys.push_back(m_keyOf(static_cast<int>(m_keys.size())));
    }
    return true;
}

void RowSortingJob::sortRun()
{
    const int end = std::min(m_sorted + runLength, static_cast<int>(m_order.size()));
    std::sort(m_order.begin() + m_sorted, m_order.begin() + end,
              [this](int a, int b) { return isBefore(a, b); });
    m_sorted = end;
}

void RowSortingJob::mergeRuns()
{
    const auto count = static_cast<int>(m_order.size());
    const int middle = std::min(m_merged + m_run, count);
    const int end = std::min(middle + m_run, count);
    std::inplace_merge(m_order.begin() + m_merged, m_order.begin() + middle, m_order.begin() + end,
                       [this](int a, int b) { return isBefore(a, b); });
    m_merged = end;
    if (m_merged < count)
        return;
    m_merged = 0;
    m_run *= 2;
}

bool RowSortingJob::isBefore(int a, int b) const
{
    const SortKey& keyOfA = m_keys[static_cast<std::size_t>(a)];
    const SortKey& keyOfB = m_keys[static_cast<std::size_t>(b)];
    if (keyOfA < keyOfB)
        return m_direction == Qt::AscendingOrder;
    if (keyOfB < keyOfA)
        return m_direction == Qt::DescendingOrder;
    return a < b;
}
