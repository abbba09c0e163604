#pragma once

#include "platform/profiles/NarrowOutput.h"

#include <QFile>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

class NarrowProfile;

/// A profile's file for the length of one narrow call: opened once, read, and rewritten in place,
/// so that its inode, its permissions and a link to it stay.
class NarrowProfileFile
{
public:
    /// What a text of Qt holds, about: characters, of which a file may have as many as bytes.
    static constexpr qint64 largestText = qint64{1000} * 1024 * 1024;

    explicit NarrowProfileFile(const QString& path);

    /// Opens an existing file for reading, or any file, created where there is none, for reading
    /// and writing. False when that fails, and for what is no file to be read, but waited for, or
    /// has no end: pipes, sockets, and all devices that do not end at once.
    bool open(QIODevice::OpenMode mode);

    /// Takes the text piece by piece.
    using Receiver = std::function<void(const QString& piece)>;

    /// Reads the text: UTF-8, or what a byte order mark at its beginning tells, which is removed;
    /// without any carriage return. False where the file cannot be read to its end.
    bool read(const Receiver& receive);
    /// The whole text; nothing where the file cannot be read, or is too large for a text.
    std::optional<QString> text();

    /// Replaces the contents, at a later time stamp than the one found and than the one that the
    /// rewrite before, of any file, gave. What was there stays where the disk has no room for it.
    void rewrite(const QByteArray& bytes);
    /// The same with what the profile writes.
    void rewrite(NarrowProfile& profile);

private:
    /// Writes the same bytes each time that it is called.
    using Produce = std::function<void(const NarrowOutput::Write& write)>;

    void rewrite(const Produce& produce);
    void replaceText(const Produce& produce);
    void advanceStamp();
    void waitForStamp(std::int64_t former);

    QFile m_file;
    std::int64_t m_foundStamp = 0; // milliseconds
};
