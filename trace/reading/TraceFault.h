#pragma once

#include <QCoreApplication>

namespace trace {

/// A line of a recording that could not be read.
struct TraceFault
{
    Q_DECLARE_TR_FUNCTIONS(TraceFault)

public:
    enum class Kind
    {
        Damaged,
        TooLong,
        Cut ///< the last line, which has no end
    };

    qint64 line; ///< from 1 on
    Kind kind;

    /// The fault in words, with the line's number.
    QString text() const;
};

} // namespace trace
