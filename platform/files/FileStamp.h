#pragma once

#include <QString>

/// Which file or folder stands at a path and in which state, as one call of `stat` tells: two
/// stamps of the same path are equal where nothing has changed between them.
class FileStamp
{
public:
    /// Of nothing: differs from every file's.
    FileStamp() = default;

    /// Of what stands there now, which may be nothing.
    static FileStamp of(const QString& path);

    bool exists() const { return m_exists; }
    /// True where it is the same file, which may have been written to meanwhile.
    bool isSameFile(const FileStamp& other) const;

    /// False where the last change was so shortly before that another one may get the same time:
    /// the system counts it in steps.
    bool isSure() const { return m_isSure; }

    friend bool operator==(const FileStamp& a, const FileStamp& b);
    friend bool operator!=(const FileStamp& a, const FileStamp& b) { return !(a == b); }

private:
    bool m_exists = false;
    quint64 m_device = 0;
    quint64 m_number = 0; ///< of the file on its device
    qint64 m_size = 0;    ///< in bytes
    qint64 m_written = 0; ///< in nanoseconds, as the next one
    qint64 m_changed = 0;
    bool m_isSure = true;
};
