#pragma once

#include <QTemporaryDir>

#include <functional>
#include <string>

/// A folder of its own for a test, with real files in it. Names are relative to the folder and
/// given in the bytes that the file system sees.
class FileTree
{
public:
    FileTree();
    /// Returns to the working directory of before, and removes everything.
    ~FileTree();

    FileTree(const FileTree&) = delete;
    FileTree& operator=(const FileTree&) = delete;

    /// The absolute path of `name`; without one, of the folder, with a "/" at its end.
    QString path(const QByteArray& name = QByteArray()) const;
    std::wstring wide(const QByteArray& name = QByteArray()) const;

    /// Each makes what it says, and throws where the file system will not have it.
    void file(const QByteArray& name, qint64 size = 0) const;
    void folder(const QByteArray& name) const;
    void link(const QByteArray& name, const QByteArray& target) const;
    void pipe(const QByteArray& name) const;
    /// Another name for the file `target`: the cheapest of entries.
    void hardLink(const QByteArray& name, const QByteArray& target) const;

    /// Whether there is an entry `name`, be it a broken link.
    bool holds(const QByteArray& name) const;

    /// Makes the folder the working directory.
    void enter() const;

private:
    QByteArray native(const QByteArray& name) const;

    QTemporaryDir m_folder;
    QString m_previous;
};

/// Runs `work` in a child process, in the folder `directory`, as a user whom file permissions bind:
/// root is not bound by any. Returns what it returns, 0 to 254; 255 where that user cannot be had.
int runUnprivileged(const QString& directory, const std::function<int()>& work);
