#include "inspection/profiles/CommonRuns.h"

#include "inspection/profiles/ShortestEdits.h"

#include <algorithm>

namespace {

// Ranges within ranges. Files that need more are compared edit by edit.
constexpr int deepest = 24;

std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}

// The longest series of pairs that ascends on both sides; the pairs ascend on the first side.
template <typename Pair>
std::vector<Pair> longestSeries(const std::vector<Pair>& pairs)
{
    std::vector<int> ends;                       // of the best series of each length, by pair
    std::vector<int> previous(pairs.size(), -1); // in the series of each pair
    for (int i = 0; i < static_cast<int>(pairs.size()); ++i) {
        const auto place =
            std::lower_bound(ends.begin(), ends.end(), pairs[at(i)].after,
                             [&pairs](int end, int after) { return pairs[at(end)].after < after; });
        if (place != ends.begin())
            previous[at(i)] = *(place - 1);
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    std::vector<Pair> series(ends.size());
    int last = ends.empty() ? -1 : ends.back();
    for (auto place = series.rbegin(); place != series.rend(); ++place) {
        *place = pairs[at(last)];
        last = previous[at(last)];
    }
    return series;
}

} // namespace

CommonRuns::CommonRuns(const std::vector<int>& before, const std::vector<int>& after, int kinds)
    : m_before(before),
      m_after(after),
      m_countBefore(at(kinds)),
      m_countAfter(at(kinds)),
      m_next(after.size()),
      m_first(at(kinds))
{
    compare({0, static_cast<int>(before.size()), 0, static_cast<int>(after.size())}, 0);
}

void CommonRuns::compare(Range range, int depth)
{
    int same = 0;
    while (range.before + same < range.beforeEnd && range.after + same < range.afterEnd &&
           m_before[at(range.before + same)] == m_after[at(range.after + same)])
        ++same;
    add(range.before, range.after, same);
    range.before += same;
    range.after += same;
    int tail = 0;
    while (range.before < range.beforeEnd && range.after < range.afterEnd &&
           m_before[at(range.beforeEnd - 1)] == m_after[at(range.afterEnd - 1)]) {
        --range.beforeEnd;
        --range.afterEnd;
        ++tail;
    }
    compareMiddle(range, depth);
    add(range.beforeEnd, range.afterEnd, tail);
}

// A range whose sides differ at both ends.
void CommonRuns::compareMiddle(const Range& range, int depth)
{
    if (range.isOneSided())
        return;
    const bool isAnyCommon = count(range);
    const std::vector<Pair> series =
        isAnyCommon && depth < deepest ? longestSeries(pairs(range)) : std::vector<Pair>();
    clearCounts(range);
    if (series.empty() && isAnyCommon)
        compareEdits(range);
    if (!series.empty())
        compareGaps(range, series, depth);
}

void CommonRuns::compareGaps(const Range& range, const std::vector<Pair>& series, int depth)
{
    Range gap = range;
    for (const Pair& pair : series) {
        gap.beforeEnd = pair.before;
        gap.afterEnd = pair.after;
        compare(gap, depth + 1);
        add(pair.before, pair.after, 1);
        gap.before = pair.before + 1;
        gap.after = pair.after + 1;
    }
    gap.beforeEnd = range.beforeEnd;
    gap.afterEnd = range.afterEnd;
    compare(gap, depth + 1);
}

// The elements that occur equally often in both sides of the range, the first with the first.
std::vector<CommonRuns::Pair> CommonRuns::pairs(const Range& range)
{
    chainAfter(range);
    std::vector<Pair> pairs;
    for (int i = range.before; i < range.beforeEnd; ++i) {
        const std::size_t kind = at(m_before[at(i)]);
        if (m_countBefore[kind] != m_countAfter[kind])
            continue;
        pairs.push_back({i, m_first[kind]});
        m_first[kind] = m_next[at(m_first[kind])];
    }
    return pairs;
}

void CommonRuns::chainAfter(const Range& range)
{
    for (int i = range.afterEnd - 1; i >= range.after; --i) {
        const std::size_t kind = at(m_after[at(i)]);
        m_next[at(i)] = m_first[kind];
        m_first[kind] = i;
    }
}

// False where the sides have nothing in common.
bool CommonRuns::count(const Range& range)
{
    for (int i = range.before; i < range.beforeEnd; ++i)
        ++m_countBefore[at(m_before[at(i)])];
    bool isAnyCommon = false;
    for (int i = range.after; i < range.afterEnd; ++i) {
        const std::size_t kind = at(m_after[at(i)]);
        ++m_countAfter[kind];
        isAnyCommon = isAnyCommon || m_countBefore[kind] > 0;
    }
    return isAnyCommon;
}

void CommonRuns::clearCounts(const Range& range)
{
    for (int i = range.before; i < range.beforeEnd; ++i)
        m_countBefore[at(m_before[at(i)])] = 0;
    for (int i = range.after; i < range.afterEnd; ++i)
        m_countAfter[at(m_after[at(i)])] = 0;
}

void CommonRuns::compareEdits(const Range& range)
{
    const ShortestEdits edits({m_before.data() + range.before, range.beforeEnd - range.before},
                              {m_after.data() + range.after, range.afterEnd - range.after});
    for (const ShortestEdits::Run& run : edits.common())
        add(range.before + run.before, range.after + run.after, run.count);
}

// Joins it to the run before where they touch.
void CommonRuns::add(int before, int after, int count)
{
    if (count == 0)
        return;
    if (!m_runs.empty()) {
        Run& last = m_runs.back();
        if (last.before + last.count == before && last.after + last.count == after) {
            last.count += count;
            return;
        }
    }
    m_runs.push_back({before, after, count});
}
