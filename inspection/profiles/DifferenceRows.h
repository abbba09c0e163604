#pragma once

#include "inspection/profiles/LineDifference.h"

/// One row of a difference as it is read from top to bottom.
struct DifferenceRow
{
    enum class Kind
    {
        Gap,  ///< before a group of lines, which do not follow the ones above
        Kept, ///< around what has changed
        Removed,
        Added
    };
    Kind kind = Kind::Gap;
    int before = -1; ///< number of the line, from 0 on; -1 where it is not there
    int after = -1;
};

/// All that has changed, with up to three kept lines around it: groups of lines, each behind a gap.
std::vector<DifferenceRow> differenceRows(const LineDifference& difference);

/// The same in the unified format, as diff and patch have it: in bytes, since no decoding would let
/// lines of another encoding be told apart. Empty where nothing differs.
QByteArray unifiedDifference(const LineDifference& difference, const QByteArray& nameBefore,
                             const QByteArray& nameAfter);
