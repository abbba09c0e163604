#pragma once

#include "inspection/Job.h"
#include "inspection/profiles/ProfileDocument.h"

#include <QByteArray>
#include <QFile>

/// Reads a profile and finds out what either family makes of its lines. Of one that is too large
/// for that, or for the memory, the lines alone are read.
class ProfileLoadingJob : public Job
{
public:
    /// A missing file has no lines.
    explicit ProfileLoadingJob(const QString& path);

    /// Looks for this name too.
    void lookFor(const ProfileDocument::Name& name) { m_names.lookFor(name); }

    bool step() override;

    /// The file with its lines and names; like everything below, complete when the job is done.
    ProfileDocument& document() { return m_document; }
    const ProfileDocument& document() const { return m_document; }
    /// The file as it lies on disk.
    const QByteArray& bytes() const { return m_document.lines().bytes(); }

private:
    bool stepWhole();
    void readLinesAlone();
    bool readFile();
    bool readLines();
    bool readNames();

    int m_stage = 0;
    ProfileDocument m_document;
    QFile m_file;
    QByteArray m_bytes;
    ProfileLines m_lines;
    ProfileNames m_names;
};
