#include "inspection/profiles/ShortestEdits.h"

#include <algorithm>

namespace {

constexpr int mostEdits = 400;

// `reach` has 2 * edits + 1 diagonals; a diagonal outside of them is out of reach.
int reached(const std::vector<int>& reach, int diagonal)
{
    const int middle = static_cast<int>(reach.size()) / 2;
    const int index = middle + diagonal;
    return index < 0 || index >= static_cast<int>(reach.size())
               ? -1
               : reach[static_cast<std::size_t>(index)];
}

// Where a diagonal begins with one edit more: behind a removal, or behind an insertion where that
// comes further. -1 where neither leads to it.
int start(const std::vector<int>& former, int diagonal)
{
    const int removal = reached(former, diagonal - 1);
    return std::max(removal < 0 ? -1 : removal + 1, reached(former, diagonal + 1));
}

} // namespace

// Greedy, after E. Myers: of each diagonal of the table of both sides the furthest point is kept
// that a number of edits reaches.
ShortestEdits::ShortestEdits(const Side& before, const Side& after)
    : m_before(before), m_after(after)
{
    m_reaches.push_back({follow(0, 0)});
    bool isDone = m_reaches.back().front() == before.count && before.count == after.count;
    for (int edits = 1; !isDone && edits <= mostEdits; ++edits)
        isDone = extend(m_reaches.back(), edits);
    if (isDone)
        traceBack();
}

// True when both sides are done.
bool ShortestEdits::extend(const Reach& former, int edits)
{
    Reach reach(2 * static_cast<std::size_t>(edits) + 1, -1);
    const int goal = m_before.count - m_after.count;
    for (int diagonal = -edits; diagonal <= edits; diagonal += 2) {
        const int from = start(former, diagonal);
        if (from < 0 || from > m_before.count || from - diagonal < 0 ||
            from - diagonal > m_after.count)
            continue;
        const int place = edits + diagonal;
        reach[static_cast<std::size_t>(place)] = follow(from, diagonal);
    }
    m_reaches.push_back(std::move(reach));
    return reached(m_reaches.back(), goal) == m_before.count;
}

// Goes on along a diagonal as far as both sides are equal.
int ShortestEdits::follow(int before, int diagonal) const
{
    while (before < m_before.count && before - diagonal < m_after.count &&
           m_before.elements[before] == m_after.elements[before - diagonal])
        ++before;
    return before;
}

void ShortestEdits::traceBack()
{
    int diagonal = m_before.count - m_after.count;
    for (std::size_t edits = m_reaches.size() - 1;; --edits) {
        const int end = reached(m_reaches[edits], diagonal);
        const int begin = edits == 0 ? 0 : start(m_reaches[edits - 1], diagonal);
        if (end > begin)
            m_common.push_back({begin, begin - diagonal, end - begin});
        if (edits == 0)
            break;
        const int removal = reached(m_reaches[edits - 1], diagonal - 1);
        diagonal += removal >= 0 && removal + 1 == begin ? -1 : 1;
    }
    std::reverse(m_common.begin(), m_common.end());
}
