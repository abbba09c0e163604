#include "pages/profiles/ProfileHistory.h"

#include "inspection/log/ChangeLine.h"
#include "inspection/profiles/ProfileBytes.h"
#include "window/MadeChange.h"
#include "window/Page.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QUndoStack>

namespace {

using Action = ProfileChange::Action;
using Report = PageContext::Report;

class ProfileUndo : public MadeChange
{
public:
    ProfileUndo(ProfileHistory& history, ProfileRecord record)
        : MadeChange(ProfileHistory::title(record)), m_history(history), m_record(std::move(record))
    {
    }

protected:
    void takeBack() override { putBack(true); }
    void makeAgain() override { putBack(false); }

private:
    void putBack(bool isUndone)
    {
        if (!m_history.putBack(m_record, isUndone))
            setObsolete(true);
    }

    ProfileHistory& m_history;
    ProfileRecord m_record;
};

// Where the audit trail says that something was changed. Not translated, as all of it.
QString placeOf(const ProfileRecord& record)
{
    const bool isWide = record.change.family == ProfileFamily::Wide;
    return record.path + (isWide ? QStringLiteral(" (wide) [") : QStringLiteral(" (narrow) [")) +
           record.change.section + QLatin1Char(']');
}

// As its header names it.
QString sectionOf(const ProfileChange& change)
{
    return change.section.isEmpty() ? QStringLiteral("General") : change.section;
}

} // namespace

ProfileHistory::ProfileHistory(PageContext& page, QWidget* window)
    : QObject(window), m_page(page), m_window(window)
{
}

void ProfileHistory::add(ProfileRecord record)
{
    if (m_latest == record.before)
        record.before = m_latest;
    m_latest = record.after;
    log(record, QString(), false);
    m_page.undoStack().push(new ProfileUndo(*this, std::move(record)));
}

bool ProfileHistory::putBack(const ProfileRecord& record, bool isUndone)
{
    if (m_isStaying)
        return true;
    const std::optional<QByteArray>& expected = isUndone ? record.after : record.before;
    const std::optional<QByteArray>& wanted = isUndone ? record.before : record.after;
    if (ProfileBytes::of(record.path) != expected && !isAgreed(record)) {
        m_page.setStatus(tr("The file stays as it is."));
        stay(isUndone);
        return true;
    }
    if (!ProfileBytes::restore(record.path, wanted)) {
        m_page.report(Report::Error, tr("%1 could not be put back.").arg(record.path));
        return false;
    }
    log(record, isUndone ? QStringLiteral("Undone: ") : QStringLiteral("Redone: "), isUndone);
    const QString summary = isUndone ? tr("Undone: %1.") : tr("Made again: %1.");
    emit restored(record.path, summary.arg(title(record)));
    return true;
}

// The undo stack moves on when this call of it has ended, and then goes back.
void ProfileHistory::stay(bool isUndone)
{
    QMetaObject::invokeMethod(
        this,
        [this, isUndone] {
            const QScopedValueRollback staying(m_isStaying, true);
            if (isUndone)
                m_page.undoStack().redo();
            else
                m_page.undoStack().undo();
        },
        Qt::QueuedConnection);
}

bool ProfileHistory::isAgreed(const ProfileRecord& record)
{
    const QString question =
        tr("%1 is no longer as the change \"%2\" left it. Putting it back loses what was written "
           "to it meanwhile.");
    QMessageBox box(QMessageBox::Warning, tr("The file has changed"),
                    question.arg(record.path, title(record)),
                    QMessageBox::Yes | QMessageBox::Cancel, m_window);
    box.setTextFormat(Qt::PlainText);
    box.button(QMessageBox::Yes)->setText(tr("&Put it back"));
    const QList<QAbstractButton*> buttons = box.buttons();
    for (QAbstractButton* button : buttons)
        glowing(qobject_cast<QPushButton*>(button));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Yes;
}

void ProfileHistory::log(const ProfileRecord& record, const QString& prefix, bool isUndone)
{
    const ProfileChange& change = record.change;
    const QString place = prefix + placeOf(record);
    const auto add = [&](const QString& name, const QString& before, const QString& after) {
        m_page.log(changeLine(place, name, isUndone ? after : before, isUndone ? before : after));
    };
    if (change.action != Action::DeleteSection) {
        add(change.key, record.former, change.action == Action::Set ? change.value : QString());
        return;
    }
    add(QString(), QStringLiteral("section"), QString());
    for (const auto& [key, value] : record.entries.shown)
        add(key, value, QString());
    const int rest = record.entries.count - static_cast<int>(record.entries.shown.size());
    if (rest > 0)
        m_page.log(QStringLiteral("%1: and %2 more keys").arg(place).arg(rest));
}

QString ProfileHistory::title(const ProfileRecord& record)
{
    const ProfileChange& change = record.change;
    const QString file = QFileInfo(record.path).fileName();
    switch (change.action) {
    case Action::Set: return tr("Set \"%1\" in %2").arg(change.key, file);
    case Action::DeleteKey: return tr("Delete \"%1\" from %2").arg(change.key, file);
    case Action::DeleteSection: return tr("Delete [%1] from %2").arg(sectionOf(change), file);
    }
    return {};
}
