#pragma once

#include "inspection/profiles/FamilyLines.h"
#include "platform/profiles/ProfileWriting.h"

#include <set>
#include <vector>

class LineDifference;

/// Entries that a family is to write all at once: as many calls of the service would read and write
/// the whole file for each of them.
class ProfileBatch
{
public:
    /// Of several entries of one name the last one counts.
    ProfileBatch(ProfileFamily family, std::vector<ProfileEntry> entries);

    ProfileFamily family() const { return m_family; }
    const std::vector<ProfileEntry>& entries() const { return m_entries; }
    /// What one of them is as a change of its own.
    ProfileChange change(const ProfileEntry& entry) const;

    /// Leaves out what the family reads in the file already: writing it would only lose what the
    /// family misreads.
    void leaveOutWhatIsRead(const QString& file);
    /// False where that is not possible.
    bool write(const QString& file) const;
    /// The first entry that the family does not read in the file; null where it reads all.
    const ProfileEntry* firstUnread(const QString& file) const;

    /// True where nothing but the lines of the entries changes, and the headers that they need.
    bool isAllThatChanges(const LineDifference& lines, const FamilyLines& before,
                          const FamilyLines& after) const;

private:
    QString nameOf(const QString& section, const QString& key) const;
    bool isEntry(const LineReading& reading) const;
    bool isAddition(const LineReading& reading) const;

    ProfileFamily m_family;
    std::vector<ProfileEntry> m_entries;
    std::set<QString> m_names;
};
