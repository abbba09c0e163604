#pragma once

#include "inspection/profiles/ProfileDocument.h"

#include <QByteArray>

/// Reads a profile and takes it apart, in steps of a few milliseconds each.
class ProfileLoading
{
public:
    /// A missing file has no lines.
    explicit ProfileLoading(const QString& path);

    /// False when nothing was left to be done.
    bool step();

    /// Complete once nothing is left to be done, as is what follows.
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
