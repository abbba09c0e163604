#include "inspection/profiles/FamilyLines.h"

#include "inspection/profiles/ProfileDocument.h"
#include "platform/profiles/NarrowLines.h"
#include "platform/profiles/NarrowProfileFile.h"
#include "platform/profiles/WideLines.h"

#include <algorithm>

namespace {

std::vector<LineReading> readingsOf(const QString& path, ProfileFamily family)
{
    if (family == ProfileFamily::Wide)
        return WideLines(ProfileDocument::bytesOf(path)).readings();
    NarrowProfileFile file(path);
    const QString text =
        file.open(QIODevice::ReadOnly) ? file.text().value_or(QString()) : QString();
    return NarrowLines(text).readings();
}

// The wide family takes a section and a key for one name: "A/B" and "c" for "A" and "B/c".
QString wideName(const QString& section, const QString& key)
{
    return section.isEmpty() ? key : section + QLatin1Char('/') + key;
}

} // namespace

FamilyLines::FamilyLines(const QString& path, ProfileFamily family)
    : m_readings(readingsOf(path, family)), m_family(family)
{
}

const LineReading& FamilyLines::at(int line) const
{
    static const LineReading blank;
    const auto index = static_cast<std::size_t>(line);
    return index < m_readings.size() ? m_readings[index] : blank;
}

bool FamilyLines::isEntryOf(int line, const ProfileChange& change) const
{
    const LineReading& reading = at(line);
    if (reading.state != LineState::Entry)
        return false;
    if (m_family == ProfileFamily::Wide)
        return wideName(reading.section, reading.key) == wideName(change.section, change.key);
    return reading.section == change.section && reading.key == change.key;
}

bool FamilyLines::hasEntryOf(const ProfileChange& change) const
{
    int line = 0;
    return std::any_of(m_readings.begin(), m_readings.end(),
                       [&](const LineReading&) { return isEntryOf(line++, change); });
}

bool FamilyLines::hasSection(const QString& section) const
{
    return std::any_of(m_readings.begin(), m_readings.end(), [&section](const LineReading& each) {
        return each.state == LineState::Entry && each.section == section;
    });
}
