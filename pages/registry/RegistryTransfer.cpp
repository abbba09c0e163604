#include "pages/registry/RegistryTransfer.h"

#include "inspection/registry/RegistryApplyJob.h"
#include "inspection/registry/RegistryExportJob.h"
#include "inspection/registry/RegistryImportJob.h"
#include "inspection/registry/RegistryPath.h"
#include "pages/registry/ChangeReport.h"
#include "pages/registry/ImportDialog.h"
#include "window/Page.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>

namespace {

QString counted(qint64 number)
{
    return QLocale().toString(number);
}

// Far above any registry file; all of it and its statements are kept in memory.
constexpr qint64 largestFile = qint64{32} * 1024 * 1024;

// Why the file cannot be imported, or an empty text. To be asked before it is opened: opening a
// pipe waits for who writes to it.
QString fault(const QFileInfo& file)
{
    if (file.exists() && !file.isFile())
        return RegistryTransfer::tr("it is not a regular file.");
    if (file.size() > largestFile)
        return RegistryTransfer::tr("it is larger than %1 MiB.").arg(largestFile / 1024 / 1024);
    return {};
}

QFileDialog* fileDialog(Page* page, const QString& title)
{
    auto* dialog = new QFileDialog(page, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setDefaultSuffix(QStringLiteral("reg"));
    return dialog;
}

} // namespace

RegistryTransfer::RegistryTransfer(Page* page) : QObject(page), m_page(page) {}

void RegistryTransfer::askExport(const QString& path)
{
    QFileDialog* dialog = fileDialog(m_page, tr("Export %1").arg(RegistryPath::shown(path)));
    const QString utf8 = tr("Registry file, UTF-8 (*.reg)");
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({tr("Registry file, UTF-16 as Windows writes it (*.reg)"), utf8});
    dialog->selectFile(path.isEmpty() ? QStringLiteral("registry.reg")
                                      : RegistryPath::name(path) + QStringLiteral(".reg"));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, dialog, path, utf8](const QString& file) {
                exportKey(path, file,
                          dialog->selectedNameFilter() == utf8 ? RegFileWriter::Encoding::Utf8
                                                               : RegFileWriter::Encoding::Utf16);
            });
    dialog->open();
}

void RegistryTransfer::exportKey(const QString& path, const QString& file,
                                 RegFileWriter::Encoding encoding)
{
    const auto finished = [this, file](RegistryExportJob& job, bool complete) {
        if (!complete)
            m_page->report(Page::Report::Warning, tr("The export was cancelled."));
        else if (!job.commit())
            m_page->report(Page::Report::Error,
                           tr("%1 could not be written: %2").arg(file, job.error()));
        else if (job.leftOut() > 0)
            m_page->report(Page::Report::Warning,
                           tr("Exported to %2. Values: %1. Left out: %3, each named in a comment.")
                               .arg(counted(job.values()), file, counted(job.leftOut())));
        else
            m_page->report(Page::Report::Info,
                           tr("Exported to %2. Values: %1.").arg(counted(job.values()), file));
    };
    m_page->startJob<RegistryExportJob>(
        tr("Exporting"), std::make_unique<RegistryExportJob>(path, file, encoding), finished);
}

void RegistryTransfer::askImport()
{
    QFileDialog* dialog = fileDialog(m_page, tr("Import a registry file"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("Registry files (*.reg)"), tr("All files (*)")});
    connect(dialog, &QFileDialog::fileSelected, this, &RegistryTransfer::importFile);
    dialog->open();
}

void RegistryTransfer::importFile(const QString& file)
{
    const QString refused = fault(QFileInfo(file));
    if (!refused.isEmpty()) {
        m_page->report(Page::Report::Error, tr("%1 was not imported: %2").arg(file, refused));
        return;
    }
    auto input = std::make_unique<QFile>(file);
    if (!input->open(QIODevice::ReadOnly)) {
        m_page->report(Page::Report::Error,
                       tr("%1 could not be read: %2").arg(file, input->errorString()));
        return;
    }
    const auto finished = [this, file](const RegistryImportJob& job, bool complete) {
        if (!job.error().isEmpty())
            m_page->report(Page::Report::Error,
                           tr("%1 was not imported: %2").arg(file, job.error()));
        else if (complete)
            preview(file, job.plan());
        else
            m_page->setStatus(tr("Cancelled: nothing was imported."));
    };
    m_page->startJob<RegistryImportJob>(
        tr("Reading the file"), std::make_unique<RegistryImportJob>(std::move(input)), finished);
}

void RegistryTransfer::preview(const QString& file, const std::shared_ptr<const ImportPlan>& plan)
{
    auto* dialog = new ImportDialog(QFileInfo(file).fileName(), *plan, m_page);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The dialog reads the plan for as long as it lives, and the connection keeps it for that long.
    connect(dialog, &QDialog::accepted, this, [this, file, plan] { apply(file, plan); });
    dialog->open();
}

void RegistryTransfer::apply(const QString& file, const std::shared_ptr<const ImportPlan>& plan)
{
    const auto finished = [this, file, plan](const RegistryApplyJob& job, bool complete) {
        emit changed();
        const int refused = plan->count(ImportPlan::Outcome::Refused) + job.failed();
        const bool good = complete && refused == 0;
        const QString text = complete
                                 ? tr("Imported %1. Statements carried out: %2. Refused: %3.")
                                 : tr("The import of %1 was cancelled. Statements carried out: %2. "
                                      "Refused: %3.");
        reportChange(*m_page, good ? Page::Report::Info : Page::Report::Warning,
                     text.arg(file, counted(job.applied()), counted(refused)));
    };
    m_page->startJob<RegistryApplyJob>(tr("Importing"), std::make_unique<RegistryApplyJob>(plan),
                                       finished);
}
