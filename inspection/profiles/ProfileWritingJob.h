#pragma once

#include "inspection/Job.h"
#include "inspection/profiles/FormerEntries.h"
#include "inspection/profiles/ProfileWriter.h"

#include <QTemporaryDir>

#include <memory>

class ParsedProfileCache;

/// Writes a value through the profile service and reads it back, or deletes lines and asks the
/// service whether it still finds what they held.
class ProfileWritingJob : public Job
{
public:
    /// A file that is large, as the one that there is, has long steps.
    ProfileWritingJob(const QString& file, const ProfileChange& change);
    /// For a file that is still to come.
    ProfileWritingJob(const QString& file, const ProfileChange& change, bool isLarge);
    /// For a change that has been tried, with the bytes that it left: where the file is the same
    /// afterwards the service is not asked again.
    ProfileWritingJob(const QString& file, const ProfileChange& change, const QByteArray& tried);
    ~ProfileWritingJob() override;

    const ProfileChange& change() const { return m_change; }

    bool step() override;
    /// True for each step on a large file.
    bool isNextStepLong() const override { return m_isLarge; }

    /// What the family read before; null where there was no file, or the change has been tried.
    const QString& former() const { return m_former; }
    /// What the family read in a section that is deleted, as many entries as a log may hold, and
    /// how many there were; nothing where the change has been tried.
    const FormerEntries& formerEntries() const { return m_formerEntries; }
    /// True once the service says that it has written, or lines have been deleted.
    bool isWritten() const { return m_isWritten; }
    /// True once the family has found the value in what lies on disk, or no longer finds what was
    /// deleted.
    bool isReadBack() const { return m_isReadBack; }
    /// True where there was not memory enough to go on: nothing has been written, or what has been
    /// has not been read back.
    bool isTooLarge() const { return m_isTooLarge; }

private:
    bool isWide() const { return m_change.family == ProfileFamily::Wide; }
    bool stepStage();
    void open();
    void parse() const;
    void readFormer();
    void write();
    void copy();
    void read();
    QString copiedFile() const;

    QString m_file;
    ProfileChange m_change;
    bool m_isLarge;
    QByteArray m_tried; ///< null where it has not been tried
    QTemporaryDir m_folder;
    QString m_former;
    FormerEntries m_formerEntries;
    std::unique_ptr<ParsedProfileCache> m_cache;
    int m_stage = 0;
    bool m_isWritten = false;
    bool m_isCopied = false;
    bool m_isReadBack = false;
    bool m_isTooLarge = false;
};
