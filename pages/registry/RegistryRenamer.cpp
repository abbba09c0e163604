#include "pages/registry/RegistryRenamer.h"

#include "inspection/registry/KeyMovePlanJob.h"
#include "inspection/registry/ListedValue.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreEntry.h"
#include "inspection/registry/TakenName.h"
#include "inspection/registry/UnkeptName.h"
#include "inspection/registry/ValueInput.h"
#include "pages/registry/ChangeReport.h"
#include "pages/registry/NameDialog.h"
#include "pages/registry/RegistryHistory.h"
#include "pages/registry/StoreGate.h"

namespace {

using Place = RegistryHistory::Place;
using Report = PageContext::Report;

QString keyProblem(const QString& path, const QString& name)
{
    const QString parent = RegistryPath::parent(path);
    const QString target = RegistryPath::join(parent, name);
    if (target == path)
        return ValueInput::keyNameProblem(name);
    const QString problem = ValueInput::newKeyNameProblem(parent, name);
    return problem.isEmpty() ? takenKeyText(target) : problem;
}

QString valueProblem(const QString& path, const QString& oldName, const QString& name)
{
    QString problem = ValueInput::nameProblem(name);
    if (problem.isEmpty() && name != oldName)
        problem = unkeptValueText(path, name);
    return problem.isEmpty() && name != oldName ? takenValueText(path, name) : problem;
}

} // namespace

RegistryRenamer::RegistryRenamer(PageContext& page, StoreGate& gate, RegistryHistory& history,
                                 QWidget* window)
    : QObject(window), m_page(page), m_gate(gate), m_history(history), m_window(window)
{
}

void RegistryRenamer::renameKey(const QString& path)
{
    if (isKeyFixed(path))
        return;
    const auto problem = [path](const QString& name) { return keyProblem(path, name); };
    auto* dialog =
        new NameDialog(tr("Rename the key"), RegistryPath::shown(RegistryPath::parent(path)),
                       problem, m_window, RegistryPath::name(path));
    m_gate.open(dialog, [this, dialog, path] { moveKey(path, dialog->name()); });
}

bool RegistryRenamer::isKeyFixed(const QString& path)
{
    if (!path.isEmpty())
        return isKeyRefused(m_page, path);
    m_page.report(Report::Error, tr("The root itself cannot be renamed."));
    return true;
}

void RegistryRenamer::moveKey(const QString& path, const QString& name)
{
    if (name == RegistryPath::name(path))
        return reportSame(name);
    if (isRefused(m_page, keyProblem(path, name)))
        return;
    const QString to = RegistryPath::join(RegistryPath::parent(path), name);
    m_page.startJob(tr("Reading the key"), std::make_unique<KeyMovePlanJob>(path, to),
                    [this, path, to](KeyMovePlanJob& plan, bool complete) {
                        if (complete)
                            makeMove(path, to, plan);
                        else
                            m_page.setStatus(tr("Cancelled: nothing was renamed."));
                    });
}

void RegistryRenamer::makeMove(const QString& from, const QString& to, KeyMovePlanJob& plan)
{
    StoreChange change = plan.takeChange();
    if (isRefused(m_page, change.empty()
                              ? tr("%1 is no longer there.").arg(RegistryPath::shown(from))
                              : QString()))
        return;
    m_history.make(
        {tr("Rename the key %1 to \"%2\"").arg(RegistryPath::shown(from), RegistryPath::name(to)),
         Place{from, QString()}, Place{to, QString()}},
        std::move(change));
}

void RegistryRenamer::renameValue(const QString& path, const ListedValue& value)
{
    if (isValueFixed(value))
        return;
    const auto problem = [path, old = value.name()](const QString& name) {
        return valueProblem(path, old, name);
    };
    auto* dialog = new NameDialog(tr("Rename the value"), RegistryPath::shown(path), problem,
                                  m_window, value.name());
    m_gate.open(dialog,
                [this, dialog, path, old = value.name()] { moveValue(path, old, dialog->name()); });
}

bool RegistryRenamer::isValueFixed(const ListedValue& value)
{
    if (isRefused(m_page, value.redirection()))
        return true;
    if (value.place() == ListedValue::Place::ListedAtRoot)
        return isRefused(m_page, tr("\"%1\" stands in the root itself, where the registry can list "
                                    "it but not set it.")
                                     .arg(value.name()));
    if (rawRegistryEntry(value.entryPath()).isNull())
        return isRefused(
            m_page,
            tr("\"%1\" is the mark of a key that was created: rename the key.").arg(value.name()));
    return false;
}

void RegistryRenamer::moveValue(const QString& path, const QString& name, const QString& newName)
{
    if (name == newName)
        return reportSame(name);
    if (isRefused(m_page, valueProblem(path, name, newName)))
        return;
    const QString from = StoreEntry::ofValue(path, name);
    const auto entry = StoreEntry::read(from);
    if (isRefused(m_page, entry ? QString() : tr("\"%1\" is no longer there.").arg(name)))
        return;
    const StoreChange change = {{from, entry, std::nullopt},
                                {StoreEntry::ofValue(path, newName), std::nullopt, entry}};
    m_history.make(
        {tr("Rename \"%1\" to \"%2\" in %3").arg(name, newName, RegistryPath::shown(path)),
         Place{path, name}, Place{path, newName}},
        change);
}

void RegistryRenamer::reportSame(const QString& name)
{
    m_page.setStatus(tr("\"%1\" keeps its name.").arg(name));
}
