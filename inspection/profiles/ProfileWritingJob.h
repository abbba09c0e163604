#pragma once

#include "inspection/Job.h"
#include "inspection/profiles/ProfileWriter.h"

#include <QTemporaryDir>

#include <memory>

class ParsedProfileCache;

/// Writes a value through the profile service and reads it back.
class ProfileWritingJob : public Job
{
public:
    ProfileWritingJob(const QString& file, const ProfileChange& change);
    ~ProfileWritingJob() override;

    const ProfileChange& change() const { return m_change; }

    bool step() override;
    /// True for each step on a file that was large before.
    bool isNextStepLong() const override { return m_isLarge; }

    /// True once the service says that it has written.
    bool isWritten() const { return m_isWritten; }
    /// True once the family has found the value in what lies on disk.
    bool isReadBack() const { return m_isReadBack; }

private:
    bool isWide() const { return m_change.family == ProfileFamily::Wide; }
    void open();
    void parse() const;
    void write();
    void copy();
    void read();
    QString copiedFile() const;

    QString m_file;
    ProfileChange m_change;
    bool m_isLarge;
    QTemporaryDir m_folder;
    std::unique_ptr<ParsedProfileCache> m_cache;
    int m_stage = 0;
    bool m_isWritten = false;
    bool m_isCopied = false;
    bool m_isReadBack = false;
};
