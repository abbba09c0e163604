#include "pages/registry/RegistryRemover.h"

#include "inspection/registry/KeysAlongJob.h"
#include "inspection/registry/ListedValue.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/RegistryRemovalJob.h"
#include "inspection/registry/RemovalText.h"
#include "pages/registry/ChangeReport.h"
#include "pages/registry/RegistryHistory.h"
#include "pages/registry/StoreBackup.h"
#include "pages/registry/StoreGate.h"
#include "window/Page.h"

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

namespace {

using Place = RegistryHistory::Place;
using Report = PageContext::Report;

QString deletedText(const QString& name, std::size_t count)
{
    return count == 1 ? QLatin1Char('"') + name + QLatin1Char('"')
                      : RegistryRemover::tr("%1 values").arg(QLocale().toString(qulonglong{count}));
}

} // namespace

RegistryRemover::RegistryRemover(PageContext& page, StoreGate& gate, RegistryHistory& history,
                                 QWidget* window)
    : QObject(window), m_page(page), m_gate(gate), m_history(history), m_window(window)
{
}

void RegistryRemover::ask(const QString& question, const QString& detail,
                          const Confirmed& confirmed)
{
    auto* box = new QMessageBox(QMessageBox::Warning, tr("Delete"), question, QMessageBox::Cancel,
                                m_window);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(detail);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* yes = glowing(box->addButton(tr("Delete"), QMessageBox::AcceptRole));
    glowing(qobject_cast<QPushButton*>(box->button(QMessageBox::Cancel)));
    box->setDefaultButton(QMessageBox::Cancel);
    auto* backup = new BackupBox;
    box->setCheckBox(backup);
    connect(box, &QMessageBox::buttonClicked, this, [=](const QAbstractButton* button) {
        const bool isBackupWanted = backup->isChecked();
        if (button == yes)
            m_gate.passAgain([=] { changeWithBackup(m_page, isBackupWanted, confirmed); });
    });
    box->open();
}

void RegistryRemover::removeValues(const QString& path, const std::vector<ListedValue>& values)
{
    Values going;
    for (const ListedValue& value : values) {
        if (isRefused(m_page, value.redirection()))
            return;
        going.push_back({value.keyToDeleteFrom(), value.name()});
    }
    if (going.empty())
        return;
    m_page.startJob(tr("Counting what goes"), std::make_unique<KeysAlongJob>(std::move(going)),
                    [this, path](const KeysAlongJob& job, bool complete) {
                        if (complete)
                            confirmValues(path, job);
                        else
                            m_page.setStatus(tr("Cancelled: nothing was deleted."));
                    });
}

void RegistryRemover::confirmValues(const QString& path, const KeysAlongJob& job)
{
    const Values& going = job.values();
    const QString question =
        going.size() == 1 ? tr("Delete this value of %1?") : tr("Delete these values of %1?");
    ask(question.arg(RegistryPath::shown(path)), RemovalText::ofValues(going, job.keys()),
        [this, path, going](const QString& backup) { removeAll(path, going, backup); });
}

void RegistryRemover::removeAll(const QString& path, const Values& values, const QString& backup)
{
    const QString first = values.front().name;
    const auto recorder = m_history.recorder();
    const auto finished = [=](const ValueRemovalJob& job, bool complete) {
        const QString text = tr("Delete %1 from %2")
                                 .arg(deletedText(first, job.removed()), RegistryPath::shown(path));
        if (!m_history.add({text, Place{path, first}, Place{path, QString()}}, *recorder))
            removeUnusedBackup(m_page, backup);
        emit changed(path);
        reportChange(m_page, complete ? Report::Info : Report::Warning,
                     tr("Deleted from %1: %2.")
                         .arg(RegistryPath::shown(path), deletedText(first, job.removed())));
    };
    m_page.startJob(tr("Deleting"), std::make_unique<ValueRemovalJob>(values, recorder), finished);
}

void RegistryRemover::removeKey(const QString& path)
{
    if (path.isEmpty())
        return m_page.report(Report::Error, tr("The root itself cannot be deleted."));
    if (isKeyRefused(m_page, path))
        return;
    const auto finished = [this, path](const RegistryCountJob& job, bool complete) {
        if (complete)
            confirmKey(path, job);
        else
            m_page.setStatus(tr("Cancelled: nothing was deleted."));
    };
    m_page.startJob(tr("Counting what goes"), std::make_unique<RegistryCountJob>(path), finished);
}

void RegistryRemover::confirmKey(const QString& path, const RegistryCountJob& count)
{
    const QStringList& keys = count.keys();
    ask(tr("Delete the key %1?").arg(RegistryPath::shown(path)), RemovalText::ofKey(path, count),
        [this, path, keys](const QString& backup) { removeKeys(path, keys, backup); });
}

void RegistryRemover::removeKeys(const QString& path, const QStringList& keys,
                                 const QString& backup)
{
    const auto recorder = m_history.recorder();
    const auto finished = [=](const RegistryRemovalJob& job, bool complete) {
        const QString parent = RegistryPath::parent(path);
        if (!m_history.add({tr("Delete the key %1").arg(RegistryPath::shown(path)),
                            Place{path, QString()}, Place{parent, QString()}},
                           *recorder))
            removeUnusedBackup(m_page, backup);
        emit changed(parent);
        const bool whole = complete && job.succeeded();
        const QString text =
            whole ? tr("Deleted the key %1.") : tr("Deleted a part of the key %1.");
        reportChange(m_page, whole ? Report::Info : Report::Warning,
                     text.arg(RegistryPath::shown(path)));
    };
    m_page.startJob(tr("Deleting"), std::make_unique<RegistryRemovalJob>(keys, recorder), finished);
}
