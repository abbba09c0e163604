#pragma once

#include "inspection/Computation.h"
#include "inspection/profiles/ProfileDifference.h"
#include "inspection/profiles/ProfileWritingJob.h"

#include <optional>

/// Tries a change on a copy of the file, and compares the copy with the file.
class ProfileDryRun : public Job
{
public:
    ProfileDryRun(const QString& file, const ProfileChange& change);
    ~ProfileDryRun() override;

    bool step() override;
    /// True for each step on a large file.
    bool isNextStepLong() const override { return m_writing.isNextStepLong(); }

    /// True where the family finds the value in the copy that it has written, or no longer finds
    /// what was deleted. Like everything below this is known when the job is done; where it is
    /// false, the rest is not looked at.
    bool isReadBack() const { return m_writing.isReadBack(); }
    /// True where there was not memory enough.
    bool isTooLarge() const { return m_isTooLarge || m_writing.isTooLarge(); }
    /// Why there was no copy to try the change on, or no room to change it, in the system's words;
    /// empty where there was.
    const QString& copyFault() const { return m_copyFault; }
    /// The file as it was found; nothing where there was none.
    const std::optional<QByteArray>& bytes() const { return m_bytes; }
    /// What the family read before; null where it found nothing.
    QString former() const;
    /// What goes with a section that is deleted.
    const FormerEntries& formerEntries() const { return m_writing.formerEntries(); }
    /// True where the family reads the value already that is to be set: writing it would only lose
    /// what the family misreads.
    bool isReadAlready() const;
    const std::shared_ptr<const ProfileDifference>& difference() const { return m_difference; }

private:
    QString formerFile() const;
    QString writtenFile() const;
    bool copyTo(const QString& path);
    void checkRoom();
    bool stepTrial();
    bool tryOut();
    void compare();
    void takeDifference();

    QString m_file;
    ProfileChange m_change;
    std::shared_ptr<QTemporaryDir> m_folder; ///< shared with the comparison
    ProfileWritingJob m_writing;
    std::optional<QByteArray> m_bytes;
    std::unique_ptr<Computation<ProfileDifference>> m_comparison;
    std::shared_ptr<const ProfileDifference> m_difference;
    int m_stage = 0;
    bool m_isTooLarge = false;
    QString m_copyFault;
};
