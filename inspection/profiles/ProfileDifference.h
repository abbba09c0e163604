#pragma once

#include "inspection/profiles/DifferenceRows.h"
#include "inspection/profiles/FamilyLines.h"

#include <QStringList>

/// What a change makes of a profile, told from the files before and after it. Asks no service: may
/// be made outside of the GUI thread.
class ProfileDifference
{
public:
    /// What becomes of a line that does not stay where it is.
    enum class Fate : unsigned char
    {
        Gone,      ///< it is dropped, or reads otherwise
        Moved,     ///< it stands elsewhere
        EndChanged ///< it has another line end, here or elsewhere
    };

    ProfileDifference(const QString& before, const QString& after, const ProfileChange& change);

    const LineDifference& lines() const { return m_lines; }
    /// See differenceRows; large files have a million of them.
    const std::vector<DifferenceRow>& rows() const { return m_rows; }
    ProfileFamily family() const { return m_family; }
    /// True where nothing has changed but the value in the line that the change asks for, in its
    /// place, or where a new line has come, with a header for a new section.
    bool isAskedFor() const { return m_isAskedFor; }
    /// How the family reads a line of the file before; from 0 on.
    const LineReading& reading(int line) const { return m_readings.at(line); }
    /// Of a line of the file before that is removed; from 0 on.
    Fate fate(int line) const { return m_fates[static_cast<std::size_t>(line)]; }
    /// True where the family found the entry before.
    bool hadEntry() const { return m_hadEntry; }
    /// See ProfileForm::changesTo.
    const QStringList& formChanges() const { return m_formChanges; }
    /// The lines, from 1 on, that are no text in the file's encoding and do not stay as they are.
    const std::vector<int>& destroyedLines() const { return m_destroyed; }

private:
    bool findAskedFor(const FamilyLines& after, const ProfileChange& change) const;
    bool losesValueOnly(const LineDifference::Hunk& hunk, const FamilyLines& after,
                        const ProfileChange& change) const;
    static bool addsAskedForOnly(const LineDifference::Hunk& hunk, const FamilyLines& after,
                                 const ProfileChange& change);
    static bool isAsked(const FamilyLines& readings, int line, const ProfileChange& change);
    void findDestroyed();
    void findFates();

    LineDifference m_lines;
    std::vector<DifferenceRow> m_rows;
    FamilyLines m_readings; ///< of the file before
    ProfileFamily m_family;
    bool m_isAskedFor;
    bool m_hadEntry;
    QStringList m_formChanges;
    std::vector<int> m_destroyed;
    std::vector<Fate> m_fates; ///< by line of the file before
};

/// The bytes that name the entry of a line: a family may write the same name in other ones.
std::string_view writtenKey(std::string_view line);
