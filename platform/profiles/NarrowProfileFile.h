#pragma once

#include <QFile>
#include <QString>

#include <cstdint>

/// A profile's file for the length of one narrow call: opened once, read, and rewritten in place,
/// so that its inode, its permissions and a link to it stay.
class NarrowProfileFile
{
public:
    explicit NarrowProfileFile(const QString& path);

    /// Opens an existing file for reading, or any file, created where there is none, for reading
    /// and writing; false when that fails.
    bool open(QIODevice::OpenMode mode);

    /// The text: UTF-8, or what a byte order mark at its beginning tells, which is removed; without
    /// any carriage return.
    QString text();

    /// Replaces the contents with `text` in UTF-8, at a later time stamp than the one found and
    /// than the one that the rewrite before, of any file, gave.
    void rewrite(const QString& text) { rewrite(text.toUtf8()); }
    /// The same with bytes as they are.
    void rewrite(const QByteArray& bytes);

private:
    void advanceStamp();
    void waitForStamp(std::int64_t former);

    QFile m_file;
    std::int64_t m_foundStamp = 0; // milliseconds
};
