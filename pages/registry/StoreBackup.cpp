#include "pages/registry/StoreBackup.h"

#include "inspection/registry/StoreBackupJob.h"
#include "window/PageContext.h"
#include "window/ShownText.h"

#include <QFile>
#include <QFileInfo>

using Report = PageContext::Report;

BackupBox::BackupBox(QWidget* parent) : QCheckBox(parent)
{
    const QString file = StoreBackupJob::nextFile();
    setObjectName(QStringLiteral("backup"));
    setEnabled(!file.isEmpty());
    setChecked(isEnabled());
    setText(isEnabled() ? tr("&Back the store up first, to %1").arg(QFileInfo(file).fileName())
                        : tr("Nothing to &back up: the store has no file that could change"));
    if (isEnabled())
        setToolTip(plainToolTip(
            tr("A copy of the store's file as it is: %1\nPut it in the place of the file to bring "
               "everything back.")
                .arg(file)));
}

void changeWithBackup(PageContext& page, bool isBackupWanted,
                      const std::function<void(const QString& backup)>& change)
{
    if (!isBackupWanted)
        return change({});
    const auto finished = [&page, change](const StoreBackupJob& job, bool complete) {
        if (!complete)
            return page.setStatus(BackupBox::tr("Cancelled: nothing was changed."));
        if (!job.error().isEmpty())
            return page.report(
                Report::Error,
                BackupBox::tr("The store could not be backed up: %1. Nothing was changed.")
                    .arg(job.error()));
        page.report(Report::Info, BackupBox::tr("Backed the store up to %1.").arg(job.file()));
        change(job.file());
    };
    page.startJob(BackupBox::tr("Backing the store up"), std::make_unique<StoreBackupJob>(),
                  finished);
}

void removeUnusedBackup(PageContext& page, const QString& backup)
{
    if (!backup.isEmpty() && QFile::remove(backup))
        page.log(QStringLiteral("Removed the backup %1: nothing was changed.").arg(backup));
}
