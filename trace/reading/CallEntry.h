#pragma once

#include <QtGlobal>

namespace trace {

/// What is kept of a call while its recording is open: where it stands, and what filters and
/// statistics ask for. Names are numbers of the recording's `NameTable`.
struct CallEntry
{
    qint64 offset = 0;    ///< of the line, in bytes
    qint64 number = 0;    ///< of the call
    qint64 enclosing = 0; ///< the number of the call that encloses it; 0 without
    qint64 time = 0;      ///< of the entry, in nanoseconds since the start
    qint64 duration = -1; ///< in nanoseconds; negative where the call never returned
    quint32 length = 0;   ///< of the line, in bytes, without its end
    int caller = 0;
    int manager = 0;
    int operation = 0;
    int thread = 0;
    qint16 depth = 0;
    bool isFailure = false;
    bool isCallback = false;

    bool hasReturned() const { return duration >= 0; }
};

} // namespace trace
