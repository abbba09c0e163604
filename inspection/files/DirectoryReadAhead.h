#pragma once

#include <QString>

#include <dirent.h>
#include <memory>

/// Reads the directory of a search once in small steps and keeps nothing of it, so that the
/// service, which lists it in one call, finds it in the system's cache: from a slow disk or over a
/// network that call would take so long that the window stood still.
class DirectoryReadAhead
{
public:
    /// A directory that cannot be opened is done with at once.
    explicit DirectoryReadAhead(const QString& pattern);

    /// Reads on.
    void step();
    bool isDone() const { return m_directory == nullptr; }

    /// How many entries have been read so far, and how many of them have names that are no text in
    /// the locale's encoding, which the service leaves out.
    int entries() const { return m_entries; }
    int undecodableNames() const { return m_undecodableNames; }

    /// Why the directory could not be opened, in the system's words; empty where it could.
    QString error() const { return m_error; }

private:
    std::unique_ptr<DIR, int (*)(DIR*)> m_directory;
    int m_entries = 0;
    int m_undecodableNames = 0;
    QString m_error;
};
