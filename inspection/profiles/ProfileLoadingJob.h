#pragma once

#include "inspection/Job.h"
#include "inspection/profiles/ProfileDocument.h"

#include <QByteArray>

/// Reads a profile and finds out what either family makes of its lines.
class ProfileLoadingJob : public Job
{
public:
    /// A missing file has no lines.
    explicit ProfileLoadingJob(const QString& path);

    bool step() override;
    /// True for each step on a large file.
    bool isNextStepLong() const override { return m_document.isLarge(); }

    /// The file with its lines; like everything below, complete when the job is done.
    ProfileDocument& document() { return m_document; }
    const ProfileDocument& document() const { return m_document; }
    /// See ProfileDocument::names.
    std::vector<ProfileDocument::Name>& names() { return m_names; }
    /// The file as it lies on disk.
    const QByteArray& bytes() const { return m_bytes; }

private:
    void readFile();
    void readNarrow();
    void readWide();
    void joinLines();
    void collectNames();

    int m_stage = 0;
    ProfileDocument m_document;
    QString m_text;
    QByteArray m_bytes;
    std::vector<LineReading> m_narrow;
    std::vector<LineReading> m_wide;
    std::vector<ProfileDocument::Name> m_names;
};
