#include "inspection/profiles/FormerEntries.h"

#include "inspection/profiles/FamilyLines.h"
#include "inspection/profiles/ProfileReader.h"
#include "platform/profiles/NarrowProfileFile.h"
#include "platform/profiles/NarrowScanner.h"

namespace {

bool isIn(const LineReading& reading, const ProfileChange& change)
{
    return reading.state == LineState::Entry && reading.section == change.section;
}

template <typename Value>
void add(FormerEntries& entries, const QString& key, Value value)
{
    if (entries.count++ < FormerEntries::most)
        entries.shown.emplace_back(key, value());
}

FormerEntries wideEntries(const QString& path, const ProfileChange& change)
{
    const FamilyLines lines(path, change.family);
    const ProfileReader reader(path);
    FormerEntries entries;
    for (int line = 0; line < lines.count(); ++line) {
        const LineReading& reading = lines.at(line);
        if (isIn(reading, change))
            add(entries, reading.key, [&] {
                return reader.wide(reading.section, reading.key).value_or(QLatin1String(""));
            });
    }
    return entries;
}

// The values as they stand in the lines: the family would read the whole file for each of them.
FormerEntries narrowEntries(const QString& path, const ProfileChange& change)
{
    const FamilyLines lines(path, change.family);
    NarrowProfileFile file(path);
    const QString text =
        file.open(QIODevice::ReadOnly) ? file.text().value_or(QString()) : QString();
    FormerEntries entries;
    NarrowScanner scanner(text);
    for (int line = 0; scanner.next(); ++line) {
        if (isIn(lines.at(line), change))
            add(entries, lines.at(line).key,
                [&] { return QLatin1String("") + scanner.value().toString(); });
    }
    return entries;
}

} // namespace

FormerEntries FormerEntries::of(const QString& path, const ProfileChange& change)
{
    return change.family == ProfileFamily::Wide ? wideEntries(path, change)
                                                : narrowEntries(path, change);
}
