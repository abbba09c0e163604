#include "pages/log/LogTable.h"

#include "window/GlyphIcon.h"
#include "window/TableCopyJob.h"

#include <utility>

namespace {

QVariant textLook(const LogEntry& entry, int role)
{
    return role == Qt::ToolTipRole ? plainToolTip(entry.beginning()) : QVariant();
}

QVariant levelLook(const LogEntry& entry, int role)
{
    if (role != Qt::DecorationRole)
        return textLook(entry, role);
    switch (entry.level) {
    case LogEntry::Level::Warning: return glyphIcon(Glyph::Warning);
    case LogEntry::Level::Error: return glyphIcon(Glyph::Error);
    default: return {};
    }
}

// Of a long message only the beginning is shown, but all of it is copied.
QVariant messageLook(const LogEntry& entry, int role)
{
    return role == TableCopyJob::wholeTextRole ? QVariant(entry.text) : textLook(entry, role);
}

SortKey severity(const LogEntry& entry)
{
    return SortKey::number(static_cast<int>(entry.level));
}

} // namespace

LogTable::LogTable(QObject* parent) : RecordsModel(columns(), parent) {}

std::vector<LogTable::Column> LogTable::columns()
{
    return {{tr("Time"), [](const LogEntry& entry) { return entry.time; }, textLook},
            Column(
                tr("Level"), [](const LogEntry& entry) { return entry.levelName(); }, levelLook)
                .sortedBy(severity),
            {tr("Message"), [](const LogEntry& entry) { return entry.beginningInOneLine(); },
             messageLook}};
}

void LogTable::add(LogPiece piece)
{
    if (piece.startsAnew)
        setRecords({});
    if (!piece.continuation.isEmpty())
        update(rowOf(rowCount() - 1),
               [&piece](LogEntry& last) { last.append(piece.continuation); });
    append(std::move(piece.entries));
}
