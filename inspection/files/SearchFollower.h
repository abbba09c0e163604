#pragma once

#include "inspection/JobRunner.h"
#include "inspection/files/FileSearchJob.h"
#include "platform/files/FileStamp.h"

#include <QElapsedTimer>

/// Looks whether a directory search would find something else by now, and then makes it again
/// beside what the user does. It looks at the folder, and at the first file found, of which the
/// service tells size and times.
class SearchFollower : public QObject
{
    Q_OBJECT

public:
    explicit SearchFollower(QObject* parent = nullptr);

    /// Follows a search that is about to be made.
    void begin(const QString& pattern);
    /// The path of the first file that it has found.
    void setFirst(const QString& path);
    /// Follows nothing any more, and tells of nothing that is being read.
    void stop();

    /// Begins to search again where something has changed.
    void look();

signals:
    /// The search has been made again and has found this.
    void found(const FileSearchJob& job, const std::vector<FoundEntry>& entries);

private:
    bool isUnchanged() const;
    void takeStamps();
    void search();
    void end();

    QString m_pattern; ///< empty: nothing is followed
    QString m_first;
    FileStamp m_folderStamp;
    FileStamp m_firstStamp;
    std::unique_ptr<FileSearchJob> m_job;
    std::vector<FoundEntry> m_entries;
    JobRunner m_runner;
    QElapsedTimer m_clock; ///< since the last search has begun, or has ended
    qint64 m_pause = 0;    ///< milliseconds from that end until the next search may begin
};
