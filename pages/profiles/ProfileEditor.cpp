#include "pages/profiles/ProfileEditor.h"

#include "inspection/profiles/ProfileDryRun.h"
#include "pages/profiles/LostLinesDialog.h"
#include "window/PageContext.h"

#include <QFile>

using Report = PageContext::Report;

ProfileEditor::ProfileEditor(PageContext& page, QWidget* window)
    : QObject(window), m_page(page), m_window(window)
{
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
    if (refused.isEmpty())
        tryOut(request);
    else
        m_page.report(Report::Error, refused);
}

void ProfileEditor::tryOut(const Request& request)
{
    m_page.startJob(tr("Trying the change on a copy"),
                    std::make_unique<ProfileDryRun>(request.path, request.change),
                    [this, request](const ProfileDryRun& dryRun, bool complete) {
                        if (complete)
                            decide(request, dryRun);
                        else
                            m_page.setStatus(tr("Nothing written."));
                    });
}

void ProfileEditor::decide(const Request& request, const ProfileDryRun& dryRun)
{
    const ProfileFamily family = request.change.family;
    if (!dryRun.isReadBack()) {
        m_page.report(Report::Error, ProfileWriter::unreadable(family));
        return;
    }
    const QByteArray& tried = dryRun.bytes();
    if (dryRun.isHarmless()) {
        writeAsTried(request, tried);
        return;
    }
    auto* dialog = new LostLinesDialog(dryRun.document(), family, dryRun.changes(), m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, request, tried] { writeAsTried(request, tried); });
    connect(dialog, &QDialog::rejected, this, [this] { m_page.setStatus(tr("Nothing written.")); });
    dialog->open();
}

// The user has agreed to what the file loses as it was when the change was tried.
void ProfileEditor::writeAsTried(const Request& request, const QByteArray& tried)
{
    if (ProfileDocument::bytesOf(request.path) == tried) {
        writeNow(request);
        return;
    }
    m_page.report(Report::Warning,
                  tr("The file has been changed meanwhile: the change is tried again."));
    tryOut(request);
}

void ProfileEditor::writeNow(const Request& request)
{
    QString backup;
    if (request.keepsBackup && QFile::exists(request.path)) {
        backup = ProfileWriter(request.path).backUp();
        if (backup.isEmpty()) {
            m_page.report(Report::Error, tr("Nothing written: the backup copy could not be made."));
            return;
        }
    }
    m_page.startJob(tr("Writing"),
                    std::make_unique<ProfileWritingJob>(request.path, request.change),
                    [this, request, backup](const ProfileWritingJob& job, bool complete) {
                        finish(request, job, backup, complete);
                    });
}

// A job that was cancelled may have written all the same.
void ProfileEditor::finish(const Request& request, const ProfileWritingJob& job,
                           const QString& backup, bool complete)
{
    if (!complete && !job.isWritten()) {
        QFile::remove(backup);
        m_page.setStatus(tr("Nothing written."));
    } else if (complete && !job.isReadBack()) {
        m_page.report(Report::Error, tr("The value could not be written to %1.").arg(request.path));
    } else {
        emit written(request.change, backup);
    }
}
