#include "pages/profiles/ProfileEditor.h"

#include "inspection/profiles/ProfileBytes.h"
#include "inspection/profiles/ProfileDryRun.h"
#include "pages/profiles/ProfileDifferenceDialog.h"
#include "pages/profiles/ProfileHistory.h"
#include "window/Page.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

#include <new>

namespace {

using Action = ProfileChange::Action;
using Report = PageContext::Report;

// The size of a file that takes the services a time that is noticed; otherwise empty.
QString noticedSize(const QString& path)
{
    if (!ProfileDocument(path).isLarge())
        return {};
    return QLocale().formattedDataSize(QFileInfo(path).size(), 0,
                                       QLocale::DataSizeTraditionalFormat);
}

QString trialTitle(const QString& path)
{
    const QString size = noticedSize(path);
    return size.isEmpty() ? ProfileEditor::tr("Trying the change on a copy")
                          : ProfileEditor::tr("Trying the change on a copy of %1").arg(size);
}

QString writingTitle(const QString& path)
{
    const QString size = noticedSize(path);
    return size.isEmpty() ? ProfileEditor::tr("Writing")
                          : ProfileEditor::tr("Writing %1").arg(size);
}

QString nothingDone(const ProfileChange& change)
{
    return change.action == Action::Set ? ProfileEditor::tr("Nothing written.")
                                        : ProfileEditor::tr("Nothing deleted.");
}

// Why nothing has been found out about a change; empty where it has been.
QString trialFault(const ProfileDryRun& dryRun)
{
    if (dryRun.isTooLarge())
        return ProfileEditor::tr("There is not memory enough to try the change on a copy.");
    if (dryRun.copyFault().isEmpty())
        return {};
    return ProfileEditor::tr("The change is tried on a copy first, which could not be written in "
                             "%1: %2.")
        .arg(QDir::tempPath(), dryRun.copyFault());
}

// False where there is not memory enough for the file.
bool readFile(const QString& path, std::optional<QByteArray>& bytes)
{
    try {
        bytes = ProfileBytes::of(path);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

QString fateQuestion(ProfilePresence::Fate fate, const QString& path)
{
    switch (fate) {
    case ProfilePresence::Fate::Same: return {};
    case ProfilePresence::Fate::Deleted:
        return ProfileEditor::tr("%1 has been deleted since it was read. Writing makes a new file "
                                 "that holds nothing but this value.")
            .arg(path);
    case ProfilePresence::Fate::Replaced:
        return ProfileEditor::tr("%1 has been replaced by another file since it was read. Writing "
                                 "changes the file that lies there now.")
            .arg(path);
    }
    return {};
}

} // namespace

ProfileEditor::ProfileEditor(PageContext& page, QWidget* window)
    : QObject(window), m_page(page), m_window(window), m_history(new ProfileHistory(page, window))
{
    connect(m_history, &ProfileHistory::restored, this, &ProfileEditor::noteRestored);
    connect(m_history, &ProfileHistory::restored, this, &ProfileEditor::restored);
}

void ProfileEditor::write(const Request& request)
{
    if (m_page.isBusy())
        return;
    if (request.path.isEmpty()) {
        m_page.report(Report::Error, tr("Open a file first."));
        return;
    }
    const QString refused = ProfileWriter(request.path).fault(request.change);
    const QString question = fateQuestion(m_presence.fate(request.path), request.path);
    if (!refused.isEmpty())
        m_page.report(Report::Error, refused);
    else if (question.isEmpty())
        tryOut(request);
    else
        askAboutFate(request, question);
}

void ProfileEditor::askAboutFate(const Request& request, const QString& question)
{
    auto* box = new QMessageBox(QMessageBox::Warning, tr("Not the file that was read"), question,
                                QMessageBox::Yes | QMessageBox::Cancel, m_window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QAbstractButton* yes = box->button(QMessageBox::Yes);
    yes->setText(tr("&Write all the same"));
    const QList<QAbstractButton*> buttons = box->buttons();
    for (QAbstractButton* button : buttons)
        glowing(qobject_cast<QPushButton*>(button));
    box->setDefaultButton(QMessageBox::Cancel);
    connect(box, &QMessageBox::buttonClicked, this, [this, yes, request](QAbstractButton* button) {
        if (button == yes)
            tryOut(request);
        else
            m_page.setStatus(nothingDone(request.change));
    });
    box->open();
}

void ProfileEditor::tryOut(const Request& request)
{
    m_page.startJob(trialTitle(request.path),
                    std::make_unique<ProfileDryRun>(request.path, request.change),
                    [this, request](const ProfileDryRun& dryRun, bool complete) {
                        if (complete)
                            decide(request, dryRun);
                        else
                            m_page.setStatus(nothingDone(request.change));
                    });
}

void ProfileEditor::decide(const Request& request, const ProfileDryRun& dryRun)
{
    const QString fault = trialFault(dryRun);
    if (!fault.isEmpty()) {
        m_page.report(Report::Error, nothingDone(request.change) + QLatin1Char(' ') + fault);
        return;
    }
    if (!dryRun.isReadBack()) {
        m_page.report(Report::Error, ProfileWriter::unreadable(request.change));
        return;
    }
    const Trial trial{dryRun.bytes(), dryRun.former(), dryRun.formerEntries(), dryRun.difference()};
    if (dryRun.isReadAlready())
        m_page.setStatus(tr("Nothing written: the family reads this value already."));
    else if (trial.difference->isAskedFor())
        writeAsTried(request, trial);
    else
        ask(request, trial);
}

void ProfileEditor::ask(const Request& request, const Trial& trial)
{
    auto* dialog = new ProfileDifferenceDialog(trial.difference, request.change, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, request, trial] { writeAsTried(request, trial); });
    connect(dialog, &QDialog::rejected, this,
            [this, request] { m_page.setStatus(nothingDone(request.change)); });
    dialog->open();
}

QString ProfileEditor::unknownEnd(const QString& path)
{
    m_presence.note(path);
    return tr("There is not memory enough to read %1 once more: the change may have been made, and "
              "cannot be undone.")
        .arg(path);
}

// The user has agreed to what happens to the file as it was when the change was tried.
void ProfileEditor::writeAsTried(const Request& request, const Trial& trial)
{
    std::optional<QByteArray> now;
    if (!readFile(request.path, now)) {
        m_page.report(Report::Error, nothingDone(request.change) + QLatin1Char(' ') +
                                         tr("There is not memory enough to read the file."));
        return;
    }
    if (now == trial.bytes) {
        writeNow(request, trial);
        return;
    }
    m_page.report(Report::Warning,
                  tr("The file has been changed meanwhile: the change is tried again."));
    write(request); // the file may have gone
}

void ProfileEditor::writeNow(const Request& request, const Trial& trial)
{
    QString backup;
    if (request.keepsBackup && trial.bytes) {
        backup = ProfileWriter(request.path).backUp();
        if (backup.isEmpty()) {
            m_page.report(Report::Error, tr("Nothing written: the backup copy could not be made."));
            return;
        }
    }
    m_page.startJob(writingTitle(request.path),
                    std::make_unique<ProfileWritingJob>(request.path, request.change,
                                                        trial.difference->lines().after().bytes()),
                    [this, request, trial, backup](const ProfileWritingJob& job, bool complete) {
                        finish(request, trial, job, backup, complete);
                    });
}

// A job that was cancelled, or that says it has failed, may have written all the same.
void ProfileEditor::finish(const Request& request, const Trial& trial, const ProfileWritingJob& job,
                           const QString& backup, bool complete)
{
    std::optional<QByteArray> after;
    if (!readFile(request.path, after)) {
        m_page.report(Report::Warning, unknownEnd(request.path));
        return;
    }
    const bool isChanged = after != trial.bytes;
    if (isChanged)
        m_history->add(
            {request.path, request.change, trial.former, trial.entries, trial.bytes, after});
    m_presence.note(request.path);
    const bool isAsShown = after == trial.difference->lines().after().bytes();
    const bool hasFailed = complete && !job.isReadBack() && !isAsShown;
    if (!isChanged && !backup.isEmpty() && (!complete || hasFailed))
        QFile::remove(backup);
    if (!complete && !isChanged) {
        m_page.setStatus(nothingDone(request.change));
    } else if (hasFailed) {
        m_page.report(Report::Error, tr("The value could not be written to %1.").arg(request.path));
    } else {
        emit written(request.change, summary(request.change, backup, isAsShown), isAsShown);
    }
}

QString ProfileEditor::summary(const ProfileChange& change, const QString& backup, bool isAsShown)
{
    const bool isSet = change.action == Action::Set;
    QString text = isSet ? tr("Written.") : tr("Deleted.");
    if (!backup.isEmpty())
        text =
            (isSet ? tr("Written; the backup copy is %1.") : tr("Deleted; the backup copy is %1."))
                .arg(backup);
    return isAsShown ? text
                     : text + QLatin1Char(' ') +
                           tr("The file differs from what was shown: look at its lines.");
}

// A file that was removed by undoing what made it has not been deleted behind our back.
void ProfileEditor::noteRestored(const QString& path)
{
    if (QFile::exists(path))
        m_presence.note(path);
    else
        m_presence.forget();
}
