#pragma once

#include "inspection/profiles/FamilyLines.h"
#include "inspection/profiles/LineDifference.h"

#include <QStringList>

/// What a change makes of a profile, told from the files before and after it. Asks no service: may
/// be made outside of the GUI thread.
class ProfileDifference
{
public:
    ProfileDifference(const QString& before, const QString& after, const ProfileChange& change);

    const LineDifference& lines() const { return m_lines; }
    ProfileFamily family() const { return m_family; }
    /// True where nothing has changed but the line that the change asks for, in its place, or a new
    /// one, with a header for a new section.
    bool isAskedFor() const { return m_isAskedFor; }
    /// How the family reads a line of the file before; from 0 on.
    const LineReading& reading(int line) const { return m_readings.at(line); }
    /// True where the family found the entry before.
    bool hadEntry() const { return m_hadEntry; }
    /// See FileForm::changesTo.
    const QStringList& formChanges() const { return m_formChanges; }
    /// The lines, from 1 on, that are no text in the file's encoding and do not stay as they are.
    const std::vector<int>& destroyedLines() const { return m_destroyed; }

private:
    bool findAskedFor(const FamilyLines& after, const ProfileChange& change) const;
    void findDestroyed();

    LineDifference m_lines;
    FamilyLines m_readings; ///< of the file before
    ProfileFamily m_family;
    bool m_isAskedFor;
    bool m_hadEntry;
    QStringList m_formChanges;
    std::vector<int> m_destroyed;
};
