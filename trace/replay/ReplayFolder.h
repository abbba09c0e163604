#pragma once

#include <QSet>
#include <QString>
#include <QTemporaryDir>

namespace replay {

/// A folder in which a replay has all its files: every absolute path of the recording stands for
/// one below it, so that nothing of the user's is read or written.
class ReplayFolder
{
public:
    /// `directory` is the working directory of the recorded program; empty where it is not known.
    explicit ReplayFolder(const QString& directory);

    bool isValid() const { return m_folder.isValid(); }
    /// The store of the replay; absent at first.
    QString storePath() const { return m_folder.filePath(QStringLiteral("store.ini")); }
    /// What stands for the recorded program's working directory.
    QString directory() const;

    /// The path here of a path of the recording. A relative one stays, and starts at `directory()`.
    QString toReplay(const QString& path) const;
    /// Makes the folder in which a path of the recording lies.
    void makeFolderOf(const QString& path) const;
    /// A text that begins with a path here, as it would be in the recording; any other one as it
    /// is.
    QString toRecorded(const QString& text) const;

    /// Whether a text of the recording and one from here are the same, or the same path. Where the
    /// working directory is not known, a path from there is compared by what follows it.
    bool isSame(const QString& recorded, const QString& replayed) const;

    /// Says that what is at this path of the recording, or was absent, is the same here.
    void setKnown(const QString& path);
    /// The same for all that is or was absent directly in that folder, and for itself.
    void setFolderKnown(const QString& path);
    bool isKnown(const QString& path) const;

private:
    QString ownDirectory() const;
    QString absolute(const QString& path) const;

    QTemporaryDir m_folder;
    QString m_root; ///< without links in it
    QString m_directory;
    QSet<QString> m_known;
    QSet<QString> m_knownFolders;
};

/// The working directory of this process, for as long as this lives.
class WorkingDirectory
{
public:
    explicit WorkingDirectory(const QString& path);
    ~WorkingDirectory();

    WorkingDirectory(const WorkingDirectory&) = delete;
    WorkingDirectory& operator=(const WorkingDirectory&) = delete;

private:
    QString m_former;
};

} // namespace replay
