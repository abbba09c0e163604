#include "pages/registry/RegistryEditor.h"

#include "inspection/registry/ListedValue.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/SetValueCheck.h"
#include "inspection/registry/StoreEntry.h"
#include "inspection/registry/ValueInput.h"
#include "pages/registry/ChangeReport.h"
#include "pages/registry/NameDialog.h"
#include "pages/registry/RegistryHistory.h"
#include "pages/registry/StoreGate.h"
#include "pages/registry/ValueDialog.h"

namespace {

using Place = RegistryHistory::Place;
using Report = PageContext::Report;

// Laying out more than this in the edit field takes longer than a window may stand still.
constexpr int mostEditedKiB = 64;

} // namespace

RegistryEditor::RegistryEditor(PageContext& page, StoreGate& gate, RegistryHistory& history,
                               QWidget* window)
    : QObject(window), m_page(page), m_gate(gate), m_history(history), m_window(window)
{
}

void RegistryEditor::newKey(const QString& parentPath)
{
    if (isKeyRefused(m_page, parentPath))
        return;
    const auto problem = [parentPath](const QString& name) {
        return ValueInput::newKeyNameProblem(parentPath, name);
    };
    auto* dialog =
        new NameDialog(tr("New key"), RegistryPath::shown(parentPath), problem, m_window);
    m_gate.open(dialog, [this, dialog, parentPath] { createKey(parentPath, dialog->name()); });
}

void RegistryEditor::createKey(const QString& parentPath, const QString& name)
{
    const QString path = RegistryPath::join(parentPath, name);
    const QString shown = RegistryPath::shown(path);
    const bool present = RegistryKey(path).isOpen();
    const bool created = !present && create(parentPath, name);
    emit changed(path, QString());
    if (present)
        reportPresent(path);
    else if (created)
        reportChange(m_page, Report::Info, tr("Created %1.").arg(shown));
    else
        m_page.report(Report::Error, tr("%1 could not be created.").arg(shown));
}

bool RegistryEditor::create(const QString& parentPath, const QString& name)
{
    const QString path = RegistryPath::join(parentPath, name);
    const auto recorder = m_history.recorder();
    recorder->watch(path);
    const bool created = RegistryKey(parentPath).createKey(name) == ERROR_SUCCESS;
    recorder->record();
    m_history.add({tr("Create the key %1").arg(RegistryPath::shown(path)),
                   Place{parentPath, QString()}, Place{path, QString()}},
                  *recorder);
    return created;
}

// The service opens a key where there is a value of its name, and does not create it there.
void RegistryEditor::reportPresent(const QString& path)
{
    const QString text =
        isRegistryKey(path)
            ? tr("%1 is there already.").arg(RegistryPath::shown(path))
            : tr("The value \"%1\" of %2 stands for a key of that name: a host library that opens "
                 "the key succeeds. Nothing was changed.")
                  .arg(RegistryPath::name(path), RegistryPath::shown(RegistryPath::parent(path)));
    m_page.report(Report::Warning, text);
}

void RegistryEditor::newValue(const QString& path, unsigned int type)
{
    if (isKeyRefused(m_page, path))
        return;
    const auto problem = [path](const QString& name) {
        return ValueInput::newNameProblem(path, name);
    };
    auto* dialog = new ValueDialog(type, problem, m_window);
    m_gate.open(dialog, [this, dialog, path] { createValue(path, *dialog); });
}

void RegistryEditor::createValue(const QString& path, const ValueDialog& dialog)
{
    // The host library may have set it since the dialog was closed.
    if (!isRefused(m_page, ValueInput::newNameProblem(path, dialog.name())))
        write(path, dialog);
}

void RegistryEditor::editValue(const QString& path, const ListedValue& value)
{
    // Directly under a root a value is set where it is read, whatever its name.
    if (value.place() == ListedValue::Place::InKey && isRefused(m_page, value.redirection()))
        return;
    const QString why = whyNotEdited(value);
    if (why.isEmpty())
        openEditor(path, value);
    else
        m_page.report(Report::Error, why);
}

QString RegistryEditor::whyNotEdited(const ListedValue& value) const
{
    if (value.place() == ListedValue::Place::ListedAtRoot)
        return tr("\"%1\" stands in the root itself, where the registry can list it but not set "
                  "it. Nothing was changed.")
            .arg(value.name());
    if (value.reading().data.size() > mostEditedKiB * 1024)
        return tr("\"%1\" has more than %2 KiB of data: too much to edit here.")
            .arg(value.name(), QString::number(mostEditedKiB));
    return {};
}

void RegistryEditor::openEditor(const QString& path, const ListedValue& value)
{
    auto* dialog = new ValueDialog(value, m_window);
    m_gate.open(dialog, [this, dialog, path] { endEditing(path, *dialog); });
}

void RegistryEditor::endEditing(const QString& path, const ValueDialog& dialog)
{
    if (dialog.isUnchanged())
        m_page.setStatus(tr("\"%1\" in %2 stays as it is: nothing was typed that would change it.")
                             .arg(dialog.name(), RegistryPath::shown(path)));
    else
        write(path, dialog);
}

void RegistryEditor::write(const QString& path, const ValueDialog& dialog)
{
    const QString name = dialog.name();
    const bool done = set(path, dialog);
    emit changed(path, name);
    if (done)
        reportWritten(path, dialog);
    else
        m_page.report(Report::Error,
                      tr("The registry refused the value \"%1\" in %2. Nothing was changed.")
                          .arg(name, RegistryPath::shown(path)));
}

bool RegistryEditor::set(const QString& path, const ValueDialog& dialog)
{
    const QString name = dialog.name();
    const auto recorder = m_history.recorder();
    recorder->watch(StoreEntry::ofValue(path, name));
    const bool done = RegistryKey(path).set(name, dialog.type(), dialog.data()) == ERROR_SUCCESS;
    recorder->record();
    m_history.add({tr("Set \"%1\" in %2").arg(name, RegistryPath::shown(path)), Place{path, name},
                   Place{path, name}},
                  *recorder);
    return done;
}

void RegistryEditor::reportWritten(const QString& path, const ValueDialog& dialog)
{
    const QString key = RegistryPath::shown(path);
    const auto read = otherReading(path, dialog.name(), dialog.type(), dialog.data());
    if (read)
        reportChange(
            m_page, Report::Warning,
            tr("Set \"%1\" in %2, but a host library reads %3.").arg(dialog.name(), key, *read));
    else
        reportChange(m_page, Report::Info, tr("Set \"%1\" in %2.").arg(dialog.name(), key));
}
