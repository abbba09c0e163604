#include "pages/registry/RegistryTransfer.h"

#include "inspection/registry/RegistryApplyJob.h"
#include "inspection/registry/RegistryExportJob.h"
#include "inspection/registry/RegistryImportJob.h"
#include "inspection/registry/RegistryPath.h"
#include "pages/registry/ChangeReport.h"
#include "pages/registry/ImportDialog.h"
#include "pages/registry/RegistryHistory.h"
#include "pages/registry/StoreBackup.h"
#include "pages/registry/StoreGate.h"
#include "window/FileDialog.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

namespace {

using Encoding = RegFileWriter::Encoding;
using Report = PageContext::Report;

// Why the file cannot be imported, or an empty text. It is to be asked before the file is opened,
// because opening a pipe waits for a program that writes to it.
QString fault(const QFileInfo& file)
{
    if (file.exists() && !file.isFile())
        return RegistryTransfer::tr("it is not a regular file.");
    return {};
}

} // namespace

RegistryTransfer::RegistryTransfer(PageContext& page, StoreGate& gate, RegistryHistory& history,
                                   QWidget* window)
    : QObject(window), m_page(page), m_gate(gate), m_history(history), m_window(window)
{
}

QFileDialog* RegistryTransfer::fileDialog(const QString& title) const
{
    auto* dialog = new FileDialog(m_window, title, "registry");
    dialog->setDefaultSuffix(QStringLiteral("reg"));
    return dialog;
}

void RegistryTransfer::askExport(const QString& path, const std::function<void()>& exported)
{
    QFileDialog* dialog = fileDialog(tr("Export %1").arg(RegistryPath::shown(path)));
    const QString utf8 = tr("Registry file, UTF-8 (*.reg)");
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({tr("Registry file, UTF-16 as Windows writes it (*.reg)"), utf8});
    dialog->selectFile(path.isEmpty() ? QStringLiteral("registry.reg")
                                      : RegistryPath::name(path) + QStringLiteral(".reg"));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, dialog, path, utf8, exported](const QString& file) {
                const bool isUtf8 = dialog->selectedNameFilter() == utf8;
                exportKey(path, file, isUtf8 ? Encoding::Utf8 : Encoding::Utf16, exported);
            });
    dialog->open();
}

void RegistryTransfer::exportKey(const QString& path, const QString& file, Encoding encoding,
                                 const std::function<void()>& exported)
{
    m_page.startJob(tr("Exporting"), std::make_unique<RegistryExportJob>(path, file, encoding),
                    [this, file, exported](RegistryExportJob& job, bool complete) {
                        if (reportExport(job, file, complete) && exported)
                            exported();
                    });
}

// True where the file is complete.
bool RegistryTransfer::reportExport(RegistryExportJob& job, const QString& file, bool complete)
{
    const QLocale locale;
    const QString values = locale.toString(job.values());
    const bool done = complete && job.commit();
    if (!complete)
        m_page.report(Report::Warning, tr("The export was cancelled."));
    else if (!done)
        m_page.report(Report::Error, tr("%1 could not be written: %2").arg(file, job.error()));
    else if (job.leftOut() > 0)
        m_page.report(Report::Warning,
                      tr("Exported to %2. Values: %1. Left out: %3, each named in a comment.")
                          .arg(values, file, locale.toString(job.leftOut())));
    else
        m_page.report(Report::Info, tr("Exported to %2. Values: %1.").arg(values, file));
    return done;
}

void RegistryTransfer::askImport()
{
    QFileDialog* dialog = fileDialog(tr("Import a registry file"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("Registry files (*.reg)"), tr("All files (*)")});
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString& file) { importFile(file); });
    dialog->open();
}

void RegistryTransfer::importFile(const QString& file, const QByteArray& codePage)
{
    const QString why = fault(QFileInfo(file));
    if (!why.isEmpty())
        return refuse(file, why);
    auto input = std::make_unique<QFile>(file);
    if (!input->open(QIODevice::ReadOnly)) {
        m_page.report(Report::Error,
                      tr("%1 could not be read: %2").arg(file, input->errorString()));
        return;
    }
    m_page.startJob(
        tr("Reading the file"), std::make_unique<RegistryImportJob>(std::move(input), codePage),
        [this, file](RegistryImportJob& job, bool complete) { endReading(job, file, complete); });
}

void RegistryTransfer::refuse(const QString& file, const QString& why)
{
    m_page.report(Report::Error, tr("%1 was not imported: %2").arg(file, why));
}

void RegistryTransfer::endReading(const RegistryImportJob& job, const QString& file, bool complete)
{
    if (!job.error().isEmpty())
        refuse(file, job.error());
    else if (complete)
        preview(file, job);
    else
        m_page.setStatus(tr("Cancelled: nothing was imported."));
}

void RegistryTransfer::preview(const QString& file, const RegistryImportJob& job)
{
    std::optional<ImportDialog::Decoding> decoding;
    if (job.reader().isVersion4())
        decoding = {job.reader().codePage(), job.reader().isOfCodePage()};
    const std::shared_ptr<const ImportPlan> plan = job.plan();
    auto* dialog = new ImportDialog(QFileInfo(file).fileName(), plan, m_window, decoding);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, file, plan] {
        const bool isBackupWanted = dialog->isBackupWanted();
        m_gate.passAgain([=] {
            changeWithBackup(m_page, isBackupWanted, [this, file, plan](const QString& backup) {
                apply(file, plan, backup);
            });
        });
    });
    connect(dialog, &ImportDialog::codePageChosen, this,
            [this, file](const QByteArray& codePage) { importFile(file, codePage); });
    dialog->open();
}

void RegistryTransfer::apply(const QString& file, const std::shared_ptr<const ImportPlan>& plan,
                             const QString& backup)
{
    const int refused = plan->count(ImportPlan::Outcome::Refused);
    const auto recorder = m_history.recorder();
    m_page.startJob(
        tr("Importing"), std::make_unique<RegistryApplyJob>(plan, recorder),
        [this, file, refused, recorder, backup](RegistryApplyJob& job, bool complete) {
            if (!m_history.add({tr("Import %1").arg(QFileInfo(file).fileName()), {}, {}},
                               *recorder))
                removeUnusedBackup(m_page, backup);
            emit changed();
            reportImport(file, job.applied(), refused + job.failed(), complete);
        });
}

void RegistryTransfer::reportImport(const QString& file, int applied, int refused, bool complete)
{
    const QLocale locale;
    const QString text = complete
                             ? tr("Imported %1. Statements carried out: %2. Refused: %3.")
                             : tr("The import of %1 was cancelled. Statements carried out: %2. "
                                  "Refused: %3.");
    reportChange(m_page, complete && refused == 0 ? Report::Info : Report::Warning,
                 text.arg(file, locale.toString(applied), locale.toString(refused)));
}
