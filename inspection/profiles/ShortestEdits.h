#pragma once

#include <vector>

/// What two short sequences have in common after the least number of insertions and removals.
///
/// Gives up, and finds nothing in common, where that number is above a limit: time and memory grow
/// with its square.
class ShortestEdits
{
public:
    struct Side
    {
        const int* elements;
        int count;
    };
    struct Run
    {
        int before; ///< where it begins on either side
        int after;
        int count;
    };

    ShortestEdits(const Side& before, const Side& after);

    /// In the order of both sides.
    const std::vector<Run>& common() const { return m_common; }

private:
    /// How far the first side is done, by diagonal; the middle one stands in the middle.
    using Reach = std::vector<int>;

    bool extend(const Reach& former, int edits);
    int follow(int before, int diagonal) const;
    void traceBack();

    Side m_before;
    Side m_after;
    std::vector<Reach> m_reaches; ///< by the number of edits
    std::vector<Run> m_common;
};
