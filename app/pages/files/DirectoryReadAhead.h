#pragma once

#include <QString>

#include <dirent.h>
#include <memory>

/// Reads the directory of a search once in small steps and keeps nothing of it, so that the
/// service, which lists it in one call, finds it in the system's cache: from a slow disk or over a
/// network that call would hold the window up.
class DirectoryReadAhead
{
public:
    /// A directory that cannot be read has no steps.
    explicit DirectoryReadAhead(const QString& pattern);

    /// Reads on; returns false at the end.
    bool step();

    /// How many entries have been read so far.
    int entries() const { return m_entries; }

private:
    std::unique_ptr<DIR, int (*)(DIR*)> m_directory;
    int m_entries = 0;
};
