#pragma once

#include "trace/replay/SkipReason.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace replay {

/// What a part of an answer was, and what it is here.
struct Difference
{
    QString part; ///< a parameter, a field, or another name in parentheses
    QString was;
    QString is;
};

/// What became of a replay.
struct ReplayReport
{
    struct DifferentCall
    {
        qint64 number;
        std::vector<Difference> differences;
    };
    struct SkippedCall
    {
        qint64 number;
        SkipReason reason;
    };

    qint64 performed = 0; ///< calls, with those that differ
    std::vector<DifferentCall> different;
    std::vector<SkippedCall> skipped;
    qint64 crashedIn = 0;  ///< the number of the call that ended the process; 0 for none
    int signal = 0;        ///< by which it ended
    QString watchedAnswer; ///< of the call that is watched: see `Player::watch`

    /// Calls that a service made within another one are no gap.
    qint64 skippedCount() const;
    bool hasCrashed() const { return crashedIn != 0 || signal != 0; }
    bool isEqual() const { return different.empty() && !hasCrashed(); }

    /// For the way from one process to another.
    QByteArray toBytes() const;
    /// False where the bytes are not all there.
    bool fromBytes(const QByteArray& bytes);
};

} // namespace replay
