#pragma once

#include "trace/reading/RecordedValue.h"

#include <optional>
#include <string_view>

namespace trace {

/// A call of a service, or of a procedure of the library by a service, with all that is recorded.
struct Call
{
    static constexpr qint64 neverReturned = -1;

    qint64 number = 0;               ///< from 1 on, in the order of entry
    qint64 time = 0;                 ///< of the entry, in nanoseconds since the start
    qint64 duration = neverReturned; ///< in nanoseconds
    int thread = 0;
    int depth = 0;        ///< 0 for a call that no other one encloses
    qint64 enclosing = 0; ///< the number of the call that encloses this one; 0 without
    QString caller;       ///< a library and an offset
    QString manager;
    QString operation; ///< or the kind of the procedure
    QString object;
    bool isCallback = false; ///< a procedure of the library
    RecordedValue arguments;
    RecordedValue result;
    RecordedValue outputs;

    bool hasReturned() const { return duration != neverReturned; }

    /// The library of a caller, without the offset.
    static QString library(const QString& caller);

    /// The call that a line of a recording tells; nothing where the line is no call, or damaged.
    static std::optional<Call> fromLine(std::string_view line);
};

} // namespace trace
