#pragma once

#include <vector>

/// Finds what two sequences have in common in the same order.
///
/// Elements are numbers below `kinds`; equal ones have the same number. Those that occur equally
/// often on both sides are paired, and the longest series of pairs in the order of both sides
/// stands; what lies between two of them is compared in the same way, and where nothing can be
/// paired, edit by edit. So the time is nearly linear whether all differs or nothing, and memory
/// is linear. What is found need not be the most that there is.
class CommonRuns
{
public:
    struct Run
    {
        int before; ///< where it begins on either side
        int after;
        int count;
    };

    CommonRuns(const std::vector<int>& before, const std::vector<int>& after, int kinds);

    /// In the order of both sides; none touches the next one on both sides.
    const std::vector<Run>& runs() const { return m_runs; }

private:
    /// A part of either side: from the first to behind the last element.
    struct Range
    {
        int before;
        int beforeEnd;
        int after;
        int afterEnd;
        bool isOneSided() const { return before == beforeEnd || after == afterEnd; }
    };
    struct Pair
    {
        int before;
        int after;
    };

    void compare(Range range, int depth);
    void compareMiddle(const Range& range, int depth);
    std::vector<Pair> pairs(const Range& range);
    void chainAfter(const Range& range);
    bool count(const Range& range);
    void clearCounts(const Range& range);
    void compareGaps(const Range& range, const std::vector<Pair>& series, int depth);
    void compareEdits(const Range& range);
    void add(int before, int after, int count);

    const std::vector<int>& m_before;
    const std::vector<int>& m_after;
    std::vector<Run> m_runs;
    std::vector<int> m_countBefore; ///< by kind; zero between two comparisons
    std::vector<int> m_countAfter;
    std::vector<int> m_next;  ///< the next element of the same kind on the side after
    std::vector<int> m_first; ///< by kind; valid while the range is paired
};
