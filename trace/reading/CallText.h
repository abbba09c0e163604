#pragma once

#include "trace/reading/Call.h"
#include "trace/reading/ValueText.h"

#include <QCoreApplication>

namespace trace {

class HandleTable;

/// A call in one line, such as
/// `17 libfoo.so+0x1a2b RegCloseKey(key = 0x5581 [HKEY_CURRENT_USER\Software]) = ERROR_SUCCESS (4.3
/// us)`. What a parameter had become when the call returned stands behind an arrow.
class CallText
{
    Q_DECLARE_TR_FUNCTIONS(CallText)

public:
    /// `handles` says what handles stand for, and outlives this.
    explicit CallText(const HandleTable& handles);
    explicit CallText(ValueText::HandleText handleText);

    /// A handle with what it stands for.
    static QString handle(const QString& handle, const QString& description);

    /// The whole line. `operation` is null for one that is not known.
    QString line(const Call& call, const Operation* operation) const;
    /// The arguments with what they have become.
    QString arguments(const Call& call, const Operation* operation) const;
    /// The result; empty for an operation that returns nothing, and of one that has not returned.
    QString result(const Call& call, const Operation* operation) const;

    /// A time of so many nanoseconds in the unit that suits it.
    static QString time(qint64 nanoseconds);

private:
    QString outcome(const Call& call, const Operation* operation) const;

    ValueText m_values;
};

} // namespace trace
