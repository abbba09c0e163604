#pragma once

#include "inspection/profiles/FormerEntries.h"
#include "inspection/profiles/ProfilePresence.h"
#include "inspection/profiles/ProfileWriter.h"

#include <QObject>

#include <memory>
#include <optional>

class PageContext;
class ProfileDifference;
class ProfileDryRun;
class ProfileHistory;
class ProfileWritingJob;
class QWidget;

/// Changes profiles: tries each change on a copy first, asks where it would change more of the file
/// than it is meant to, keeps a backup copy where one is wanted, and lets changes be undone.
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

    /// `window` is the parent of the questions. Both must outlive this.
    ProfileEditor(PageContext& page, QWidget* window);

    /// To be called when a file has been read, so that it is noticed when it vanishes.
    void noteRead(const QString& path) { m_presence.note(path); }

    /// Refuses with a report what cannot be written. Does nothing while a job runs.
    void write(const Request& request);

signals:
    /// The file is not as it was; the summary tells what was done, and whether it is as shown.
    void written(const ProfileChange& change, const QString& summary, bool isAsShown);
    /// A file has been put back as it was before a change, or after it.
    void restored(const QString& path, const QString& summary);

private:
    /// What a dry run has found.
    struct Trial
    {
        std::optional<QByteArray> bytes; ///< the file as it was; nothing where there was none
        QString former;
        FormerEntries entries;
        std::shared_ptr<const ProfileDifference> difference;
    };

    void askAboutFate(const Request& request, const QString& question);
    void tryOut(const Request& request);
    void decide(const Request& request, const ProfileDryRun& dryRun);
    void ask(const Request& request, const Trial& trial);
    void writeAsTried(const Request& request, const Trial& trial);
    void writeNow(const Request& request, const Trial& trial);
    void finish(const Request& request, const Trial& trial, const ProfileWritingJob& job,
                const QString& backup, bool complete);
    QString unknownEnd(const QString& path);
    static QString summary(const ProfileChange& change, const QString& backup, bool isAsShown);
    void noteRestored(const QString& path);

    PageContext& m_page;
    QWidget* m_window;
    ProfileHistory* m_history;
    ProfilePresence m_presence;
};
