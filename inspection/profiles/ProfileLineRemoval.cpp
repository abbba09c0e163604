#include "inspection/profiles/ProfileLineRemoval.h"

#include "inspection/profiles/ByteLines.h"
#include "inspection/profiles/FamilyLines.h"
#include "inspection/profiles/ProfileBytes.h"
#include "inspection/profiles/ProfileDocument.h"
#include "platform/profiles/IniName.h"
#include "platform/profiles/NarrowProfileFile.h"
#include "platform/profiles/NarrowScanner.h"

namespace {

using Action = ProfileChange::Action;

// Which lines of a file are to be deleted; of lines beyond the last one nothing is known.
using Marks = std::vector<bool>;

// Also lines that later ones replace: they would come to light.
Marks narrowMarks(const QString& path, const ProfileChange& change)
{
    NarrowProfileFile file(path);
    const QString text =
        file.open(QIODevice::ReadOnly) ? file.text().value_or(QString()) : QString();
    const QString header = QLatin1Char('[') + change.section + QLatin1Char(']');
    Marks marks;
    for (NarrowScanner line(text); line.next();) {
        const bool isKey = line.isEntry() && line.key() == change.key;
        marks.push_back(line.header() == header &&
                        (isKey || change.action == Action::DeleteSection));
    }
    return marks;
}

bool isWideHeader(const ByteLines& lines, int line, const QString& section)
{
    const std::string_view content = lines.at(line);
    const QByteArray bytes(content.data(), static_cast<int>(content.size()));
    const QByteArray header = bytes.mid(line == 0 ? lines.markSize() : 0).trimmed();
    return IniName::sectionPrefix(header) ==
           (section.isEmpty() ? QString() : section + QLatin1Char('/'));
}

bool isEntry(LineState state)
{
    return state == LineState::Entry || state == LineState::ReplacedKey ||
           state == LineState::NotFound;
}

// What the wide family finds in no section stands under [General], and before the first header.
// There a comment speaks of the file, and stays.
Marks wideSectionMarks(const ByteLines& lines, const FamilyLines& readings, const QString& section)
{
    Marks marks;
    bool isInside = false;
    bool isBeforeHeaders = true;
    for (int line = 0; line < lines.count(); ++line) {
        const LineState state = readings.at(line).state;
        if (state == LineState::Header) {
            isInside = isWideHeader(lines, line, section);
            isBeforeHeaders = false;
        } else if (isBeforeHeaders && state != LineState::Continuation) {
            isInside = section.isEmpty() && isEntry(state);
        }
        marks.push_back(isInside);
    }
    return marks;
}

Marks wideKeyMarks(const ByteLines& lines, const FamilyLines& readings, const ProfileChange& change)
{
    Marks marks;
    bool isInside = false;
    for (int line = 0; line < lines.count(); ++line) {
        const LineReading& reading = readings.at(line);
        const bool isReplaced = reading.state == LineState::ReplacedKey &&
                                reading.section == change.section && reading.key == change.key;
        if (reading.state != LineState::Continuation)
            isInside = isReplaced || readings.isEntryOf(line, change);
        marks.push_back(isInside);
    }
    return marks;
}

Marks marksOf(const ByteLines& lines, const QString& path, const ProfileChange& change)
{
    if (change.family == ProfileFamily::Narrow)
        return narrowMarks(path, change);
    const FamilyLines readings(path, change.family);
    return change.action == Action::DeleteSection
               ? wideSectionMarks(lines, readings, change.section)
               : wideKeyMarks(lines, readings, change);
}

} // namespace

QByteArray ProfileLineRemoval::bytesWithout(const QString& path, const ProfileChange& change)
{
    const ByteLines lines(ProfileDocument::bytesOf(path));
    Marks marks = marksOf(lines, path, change);
    marks.resize(static_cast<std::size_t>(lines.count()));
    QByteArray kept = lines.bytes().left(lines.markSize()); // it tells how to read the rest
    kept.reserve(lines.bytes().size());
    for (int line = 0; line < lines.count(); ++line) {
        std::string_view bytes = lines.at(line);
        bytes.remove_prefix(static_cast<std::size_t>(line == 0 ? lines.markSize() : 0));
        if (!marks[static_cast<std::size_t>(line)])
            kept.append(bytes.data(), static_cast<int>(bytes.size()));
    }
    return kept;
}

bool ProfileLineRemoval::apply(const QString& path, const ProfileChange& change)
{
    const QByteArray kept = bytesWithout(path, change);
    return kept != ProfileDocument::bytesOf(path) && ProfileBytes::restore(path, kept);
}
