#include "pages/profiles/ProfileHistory.h"

#include "inspection/log/ChangeLine.h"
#include "inspection/profiles/ProfileBytes.h"
#include "window/MadeChange.h"
#include "window/Page.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
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
    log(record, false);
    m_page.undoStack().push(new ProfileUndo(*this, std::move(record)));
}

bool ProfileHistory::putBack(const ProfileRecord& record, bool isUndone)
{
    const std::optional<QByteArray>& expected = isUndone ? record.after : record.before;
    const std::optional<QByteArray>& wanted = isUndone ? record.before : record.after;
    if (ProfileBytes::of(record.path) != expected && !isAgreed(record)) {
        m_page.setStatus(tr("The file stays as it is."));
        return false;
    }
    if (!ProfileBytes::restore(record.path, wanted)) {
        m_page.report(Report::Error, tr("%1 could not be put back.").arg(record.path));
        return false;
    }
    log(record, isUndone);
    const QString summary = isUndone ? tr("Undone: %1.") : tr("Made again: %1.");
    emit restored(record.path, summary.arg(title(record)));
    return true;
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

void ProfileHistory::log(const ProfileRecord& record, bool isUndone)
{
    const ProfileChange& change = record.change;
    const bool isSection = change.action == Action::DeleteSection;
    const QString former = isSection ? QStringLiteral("section") : record.former;
    const QString value = change.action == Action::Set ? change.value : QString();
    m_page.log(changeLine(placeOf(record), isSection ? QString() : change.key,
                          isUndone ? value : former, isUndone ? former : value));
}

QString ProfileHistory::title(const ProfileRecord& record)
{
    const ProfileChange& change = record.change;
    const QString file = QFileInfo(record.path).fileName();
    switch (change.action) {
    case Action::Set: return tr("Set \"%1\" in %2").arg(change.key, file);
    case Action::DeleteKey: return tr("Delete \"%1\" from %2").arg(change.key, file);
    case Action::DeleteSection: return tr("Delete [%1] from %2").arg(change.section, file);
    }
    return {};
}
