#pragma once

#include "inspection/profiles/ProfileWriter.h"
#include "platform/profiles/LineReading.h"

#include <QStringList>

#include <vector>

/// The lines of a profile on disk as one of the families reads them, numbered from 0 on as
/// ByteLines numbers them. Asks no service: may be made outside of the GUI thread.
class FamilyLines
{
public:
    FamilyLines(const QString& path, ProfileFamily family);

    int count() const { return static_cast<int>(m_readings.size()); }
    /// A blank one beyond the last line.
    const LineReading& at(int line) const;
    /// True for the entry that a change sets or deletes, as the family finds it.
    bool isEntryOf(int line, const ProfileChange& change) const;
    /// True where any line is the entry of the change.
    bool hasEntryOf(const ProfileChange& change) const;
    /// True where the family finds any entry in the section.
    bool hasSection(const QString& section) const;

private:
    std::vector<LineReading> m_readings;
    ProfileFamily m_family;
};
