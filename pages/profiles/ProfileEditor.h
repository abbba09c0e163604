#pragma once

#include "inspection/profiles/ProfileWriter.h"

#include <QObject>

class PageContext;
class ProfileDryRun;
class ProfileWritingJob;
class QWidget;

/// Writes values into a profile: tries each change on a copy first, asks before lines are lost, and
/// keeps a backup copy where one is wanted.
class ProfileEditor : public QObject
{
    Q_OBJECT

public:
    struct Request
    {
        QString path;
        ProfileChange change;
        bool keepsBackup = true;
    };

    /// `window` is the parent of the question. Both must outlive this.
    ProfileEditor(PageContext& page, QWidget* window);

    /// Refuses with a report what cannot be written. Does nothing while a job runs.
    void write(const Request& request);

signals:
    /// The backup copy's path is empty where none was made.
    void written(const ProfileChange& change, const QString& backup);

private:
    void tryOut(const Request& request);
    void decide(const Request& request, const ProfileDryRun& dryRun);
    void writeAsTried(const Request& request, const QByteArray& tried);
    void writeNow(const Request& request);
    void finish(const Request& request, const ProfileWritingJob& job, const QString& backup,
                bool complete);

    PageContext& m_page;
    QWidget* m_window;
};
