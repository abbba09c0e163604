#pragma once

#include "inspection/profiles/FormerEntries.h"
#include "inspection/profiles/ProfileWriter.h"

#include <QByteArray>
#include <QObject>

#include <optional>

class PageContext;
class QWidget;

/// A change that was made to a profile, with the whole file before and after it.
struct ProfileRecord
{
    QString path;
    ProfileChange change;
    QString former;                   ///< what the family read before; null where it found nothing
    FormerEntries entries;            ///< of a section that is deleted
    std::optional<QByteArray> before; ///< nothing where there was no file
    std::optional<QByteArray> after;
};

/// Keeps the changes to profiles on the page's undo stack and in the audit trail, and puts files
/// back.
class ProfileHistory : public QObject
{
    Q_OBJECT

public:
    /// `window` is the parent of questions. Both must outlive this.
    ProfileHistory(PageContext& page, QWidget* window);

    /// Takes up a change that has just been made.
    void add(ProfileRecord record);

    /// Makes the file what it was before the change, or after it. Asks first where others have
    /// changed the file since: where the answer is no, the undo stack goes back to the change,
    /// which can be tried again. False, with a report, where the file cannot be written.
    bool putBack(const ProfileRecord& record, bool isUndone);

    /// A change in a few words: the text of its entry.
    static QString title(const ProfileRecord& record);

signals:
    /// A file has been put back; the summary tells which change has been undone or made again.
    void restored(const QString& path, const QString& summary);

private:
    bool isAgreed(const ProfileRecord& record);
    void stay(bool isUndone);
    void log(const ProfileRecord& record, const QString& prefix, bool isUndone);

    PageContext& m_page;
    QWidget* m_window;
    bool m_isStaying = false;           ///< the stack goes back, and no file with it
    std::optional<QByteArray> m_latest; ///< shares its memory with the record that comes next
};
