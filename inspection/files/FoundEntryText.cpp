#include "inspection/files/FoundEntryText.h"

#include <QDateTime>
#include <QLocale>

namespace {

constexpr QChar dash(0x2013);

} // namespace

QString FoundEntryText::size(const FoundEntry& entry)
{
    return entry.details ? QLocale().toString(entry.details->size) : QString(dash);
}

// The low word holds seconds since 1970, the high one nothing.
QString FoundEntryText::time(const FoundEntry& entry, Time time)
{
    if (!entry.details)
        return dash;
    return QDateTime::fromSecsSinceEpoch(((*entry.details).*time).dwLowDateTime)
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString FoundEntryText::rawSize(const FoundEntry& entry)
{
    if (!entry.details)
        return unwritten();
    return QStringLiteral("nFileSizeHigh %1, nFileSizeLow %2")
        .arg(entry.details->size >> 32U)
        .arg(entry.details->size & 0xFFFFFFFFU);
}

QString FoundEntryText::rawTime(const FoundEntry& entry, Time time)
{
    if (!entry.details)
        return unwritten();
    const FILETIME& raw = (*entry.details).*time;
    return QStringLiteral("dwLowDateTime %1, dwHighDateTime %2")
        .arg(raw.dwLowDateTime)
        .arg(raw.dwHighDateTime);
}

QString FoundEntryText::unwritten()
{
    return tr("The service has not written this field: a caller finds in it what its record "
              "held before the call.");
}
