#pragma once

#include <QString>

/// Which file stands at a path, and in which state, as far as one call of `stat` tells.
struct FileIdentity
{
    bool exists = false;
    quint64 device = 0;
    quint64 number = 0; ///< of the file on its device
    qint64 size = 0;    ///< in bytes
    qint64 seconds = 0; ///< of the last change
    qint64 nanoseconds = 0;

    /// Of what stands there now; a path that leads nowhere gives one that does not exist.
    static FileIdentity of(const QString& path);

    /// True where it is the same file, which may have been written to meanwhile.
    bool isSameFile(const FileIdentity& other) const;

    bool operator==(const FileIdentity& other) const;
    bool operator!=(const FileIdentity& other) const { return !(*this == other); }
};
