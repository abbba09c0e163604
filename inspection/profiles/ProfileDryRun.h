#pragma once

#include "inspection/profiles/ProfileLoadingJob.h"
#include "inspection/profiles/ProfileWritingJob.h"

/// Tries a change on a copy of the file, and finds out what else the family would change in it.
class ProfileDryRun : public Job
{
public:
    ProfileDryRun(const QString& file, const ProfileChange& change);

    bool step() override;
    /// True for each step on a large file.
    bool isNextStepLong() const override { return document().isLarge(); }

    const QString& file() const { return m_loading.document().path(); }
    const ProfileChange& change() const { return m_change; }

    /// True where the family finds the value in the copy that it has written. Like everything below
    /// this is known when the job is done; where it is false, the rest is not looked at.
    bool isReadBack() const { return m_writing.isReadBack(); }
    /// The file as it was found.
    const ProfileDocument& document() const { return m_loading.document(); }
    const QByteArray& bytes() const { return m_loading.bytes(); }
    /// See NarrowRewriting::changes; empty for the wide family.
    const QString& changes() const { return m_changes; }
    /// True where the write loses no line and changes nothing but the value.
    bool isHarmless() const;

private:
    QString copiedFile() const;
    bool copy();
    void compare();

    ProfileChange m_change;
    QTemporaryDir m_folder;
    ProfileLoadingJob m_loading;
    ProfileWritingJob m_writing;
    QString m_changes;
    bool m_isCopied = false;
    bool m_isCompared = false;
};
