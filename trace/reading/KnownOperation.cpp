#include "trace/reading/KnownOperation.h"

#include "trace/Operations.h"

namespace trace {

namespace {

// What a result was before it was written down, as far as it matters: null is 0, and so is an empty
// text; a name, such as that of a root, is something else than 0.
quint64 numberOf(const RecordedValue& value)
{
    if (value.isNull())
        return 0;
    if (value.kind == RecordedValue::Kind::Number)
        return static_cast<quint64>(value.toInteger());
    const QString& shown = value.members.empty() ? value.text : value.members.front().value.text;
    if (shown == QLatin1String("INVALID_HANDLE_VALUE"))
        return ~quint64{0};
    bool isNumber = false;
    const quint64 number = shown.toULongLong(&isNumber, 0);
    return isNumber ? number : static_cast<quint64>(shown.size());
}

} // namespace

bool KnownOperation::isFailure(const Operation& operation, const RecordedValue& result)
{
    return !result.isAbsent() && trace::isFailure(operation, numberOf(result));
}

QString KnownOperation::names(const Rows<BitName>& names, quint32 number)
{
    QString joined;
    forEachName(names, number, [&joined](const char* name) {
        if (!joined.isEmpty())
            joined += QLatin1Char('|');
        joined += QLatin1String(name);
    });
    return joined;
}

} // namespace trace
