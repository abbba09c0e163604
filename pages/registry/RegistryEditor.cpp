#include "pages/registry/RegistryEditor.h"

#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryCountJob.h"
#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/RegistryRemovalJob.h"
#include "inspection/registry/ValueRemovalJob.h"
#include "pages/registry/ChangeReport.h"
#include "pages/registry/NameDialog.h"
#include "pages/registry/ValueDialog.h"
#include "window/Page.h"

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace {

using Place = RegistryValueModel::Place;
using Value = RegistryValueModel::Value;

constexpr std::size_t mostNamed = 10;

// More takes the field longer to lay out than a window may stand still.
constexpr int mostEditedKiB = 64;

// Where a value is deleted, so that nothing but it goes: directly under a root that would take the
// whole key with it in which it is kept.
QString keyOf(const QString& path, const Value& value)
{
    return value.place == Place::UnderRoot ? value.name : path;
}

// The service deletes a key of the same name along with a value; the mark of a created key is all
// that there is of that key.
bool takesKeyAlong(const QString& path, const Value& value)
{
    return isRegistryKey(RegistryPath::join(keyOf(path, value), value.name));
}

QString namesOf(const std::vector<Value>& values)
{
    QStringList lines;
    for (std::size_t i = 0; i < values.size() && i < mostNamed; ++i)
        lines.append(values[i].name);
    if (values.size() > mostNamed)
        lines.append(RegistryEditor::tr("and %1 more").arg(values.size() - mostNamed));
    return lines.join(QLatin1Char('\n'));
}

QString alongText(const QString& path, const std::vector<Value>& values)
{
    QStringList keys;
    for (const Value& value : values) {
        if (keys.size() < static_cast<int>(mostNamed) && takesKeyAlong(path, value))
            keys.append(RegistryPath::shown(RegistryPath::join(keyOf(path, value), value.name)));
    }
    if (keys.isEmpty())
        return QString();
    return RegistryEditor::tr("Keys of the same name go with everything in them:") +
           QLatin1Char('\n') + keys.join(QLatin1Char('\n'));
}

QString deletedText(const std::vector<Value>& values, std::size_t count)
{
    return count == 1 ? QLatin1Char('"') + values.front().name + QLatin1Char('"')
                      : RegistryEditor::tr("%1 values")
                            .arg(QLocale().toString(static_cast<qint64>(count)));
}

QString counted(qint64 number)
{
    return QLocale().toString(number);
}

// Also by an entry that no host library can read: writing would replace that too.
bool isTaken(const QString& path, const QString& name)
{
    return !rawRegistryEntry(RegistryPath::join(path.isEmpty() ? name : path, name)).isNull();
}

// The service deletes a value of the same name along with a key.
QString valueAlongText(const QString& path)
{
    if (rawRegistryEntry(path).isNull())
        return QString();
    return QLatin1Char('\n') +
           RegistryEditor::tr("The value \"%1\" of %2 goes with it.")
               .arg(RegistryPath::name(path), RegistryPath::shown(RegistryPath::parent(path)));
}

} // namespace

RegistryEditor::RegistryEditor(Page* page) : QObject(page), m_page(page) {}

void RegistryEditor::ask(const QString& question, const QString& detail,
                         const std::function<void()>& confirmed)
{
    auto* box =
        new QMessageBox(QMessageBox::Warning, tr("Delete"), question, QMessageBox::Cancel, m_page);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(detail);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* yes = glowing(box->addButton(tr("Delete"), QMessageBox::AcceptRole));
    glowing(qobject_cast<QPushButton*>(box->button(QMessageBox::Cancel)));
    box->setDefaultButton(QMessageBox::Cancel);
    connect(box, &QMessageBox::buttonClicked, this, [yes, confirmed](QAbstractButton* button) {
        if (button == yes)
            confirmed();
    });
    box->open();
}

// Where a host library finds another key, a change would be made in that one.
bool RegistryEditor::isRefused(const QString& path)
{
    if (isRedirected(path))
        reportRefusal(redirectedKeyText(path));
    return isRedirected(path);
}

bool RegistryEditor::isRefused(const QString& path, const Value& value)
{
    if (isRefused(path))
        return true;
    if (isRedirected(value.name))
        reportRefusal(redirectedValueText(RegistryPath::join(path, value.name)));
    return isRedirected(value.name);
}

void RegistryEditor::reportRefusal(const QString& why)
{
    m_page->report(Page::Report::Error, tr("%1 Nothing was changed.").arg(why));
}

void RegistryEditor::newKey(const QString& parentPath)
{
    if (isRefused(parentPath))
        return;
    auto* dialog = new NameDialog(RegistryPath::shown(parentPath), m_page);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog, parentPath] { createKey(parentPath, dialog->name()); });
    dialog->open();
}

void RegistryEditor::createKey(const QString& parentPath, const QString& name)
{
    const QString path = RegistryPath::join(parentPath, name);
    const bool present = RegistryKey(path).isOpen();
    const bool created = !present && RegistryKey(parentPath).createKey(name) == ERROR_SUCCESS;
    emit changed(path, QString());
    if (present)
        reportPresent(path);
    else if (created)
        reportChange(*m_page, Page::Report::Info, tr("Created %1.").arg(RegistryPath::shown(path)));
    else
        m_page->report(Page::Report::Error,
                       tr("%1 could not be created.").arg(RegistryPath::shown(path)));
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
    m_page->report(Page::Report::Warning, text);
}

void RegistryEditor::newValue(const QString& path, unsigned int type)
{
    if (isRefused(path))
        return;
    auto* dialog = new ValueDialog(type, m_page);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, path] {
        if (isTaken(path, dialog->name()))
            m_page->report(Page::Report::Error,
                           tr("%1 has a value \"%2\" already. Nothing was changed.")
                               .arg(RegistryPath::shown(path), dialog->name()));
        else
            write(path, dialog->name(), dialog->type(), dialog->data());
    });
    dialog->open();
}

void RegistryEditor::editValue(const QString& path, const Value& value)
{
    if (value.place == Place::ListedAtRoot) {
        m_page->report(Page::Report::Error,
                       tr("\"%1\" stands in the root itself, where the registry can list it but "
                          "not set it. Nothing was changed.")
                           .arg(value.name));
        return;
    }
    // Directly under a root a value is set where it is read.
    if (value.place == Place::InKey && isRefused(path, value))
        return;
    if (value.reading.data.size() > mostEditedKiB * 1024) {
        m_page->report(Page::Report::Error,
                       tr("\"%1\" has more than %2 KiB of data: too much to edit here.")
                           .arg(value.name, QString::number(mostEditedKiB)));
        return;
    }
    openEditor(path, value);
}

void RegistryEditor::openEditor(const QString& path, const Value& value)
{
    const bool readable = value.reading.readable;
    const unsigned int type = readable ? value.reading.type : REG_SZ;
    const QByteArray data = readable ? value.reading.data : QByteArray();
    auto* dialog = new ValueDialog(value.name, type, data, m_page);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog, path] { write(path, dialog->name(), dialog->type(), dialog->data()); });
    dialog->open();
}

void RegistryEditor::write(const QString& path, const QString& name, unsigned int type,
                           const QByteArray& data)
{
    const bool done = RegistryKey(path).set(name, type, data) == ERROR_SUCCESS;
    emit changed(path, name);
    if (done)
        compare(path, name, type, data);
    else
        m_page->report(Page::Report::Error,
                       tr("The registry refused the value \"%1\" in %2. Nothing was changed.")
                           .arg(name, RegistryPath::shown(path)));
}

// Says what a host library reads now where that is not what was written.
void RegistryEditor::compare(const QString& path, const QString& name, unsigned int type,
                             const QByteArray& written)
{
    const int terminator = type == REG_SZ ? static_cast<int>(sizeof(wchar_t)) : 0;
    const RegistryReading reading = RegistryKey(path).read(name);
    const bool same = reading.readable && reading.type == type &&
                      reading.data == written.left(written.size() - terminator);
    if (same)
        reportChange(*m_page, Page::Report::Info,
                     tr("Set \"%1\" in %2.").arg(name, RegistryPath::shown(path)));
    else
        reportChange(*m_page, Page::Report::Warning,
                     tr("Set \"%1\" in %2, but a host library reads %3.")
                         .arg(name, RegistryPath::shown(path),
                              reading.readable ? RegistryFormat::data(reading.type, reading.data)
                                               : tr("nothing")));
}

void RegistryEditor::removeValues(const QString& path, const Values& values)
{
    const auto refused = [this, &path](const Value& value) { return isRefused(path, value); };
    if (values.empty() || std::any_of(values.begin(), values.end(), refused))
        return;
    const QString question =
        values.size() == 1 ? tr("Delete this value of %1?") : tr("Delete these values of %1?");
    const QString along = alongText(path, values);
    const QString detail =
        along.isEmpty() ? namesOf(values) : namesOf(values) + QStringLiteral("\n\n") + along;
    ask(question.arg(RegistryPath::shown(path)), detail,
        [this, path, values] { removeAll(path, values); });
}

void RegistryEditor::removeAll(const QString& path, const Values& values)
{
    std::vector<ValueRemovalJob::Value> places;
    for (const Value& value : values)
        places.push_back({keyOf(path, value), value.name});
    const auto finished = [this, path, values](const ValueRemovalJob& job, bool complete) {
        emit changed(path, QString());
        reportChange(*m_page, complete ? Page::Report::Info : Page::Report::Warning,
                     tr("Deleted from %1: %2.")
                         .arg(RegistryPath::shown(path), deletedText(values, job.removed())));
    };
    m_page->startJob<ValueRemovalJob>(
        tr("Deleting"), std::make_unique<ValueRemovalJob>(std::move(places)), finished);
}

void RegistryEditor::removeKey(const QString& path)
{
    if (path.isEmpty()) {
        m_page->report(Page::Report::Error, tr("The root itself cannot be deleted."));
        return;
    }
    if (isRefused(path))
        return;
    const auto finished = [this, path](const RegistryCountJob& job, bool complete) {
        if (complete)
            confirmKey(path, job.keys(), job.values());
        else
            m_page->setStatus(tr("Cancelled: nothing was deleted."));
    };
    m_page->startJob<RegistryCountJob>(tr("Counting what goes"),
                                       std::make_unique<RegistryCountJob>(path), finished);
}

void RegistryEditor::confirmKey(const QString& path, const QStringList& keys, int values)
{
    ask(tr("Delete the key %1?").arg(RegistryPath::shown(path)),
        tr("Keys below it that go with it: %1. Values: %2.")
                .arg(counted(keys.size() - 1), counted(values)) +
            valueAlongText(path),
        [this, path, keys] { removeKeys(path, keys); });
}

void RegistryEditor::removeKeys(const QString& path, const QStringList& keys)
{
    const auto finished = [this, path](const RegistryRemovalJob& job, bool complete) {
        emit changed(RegistryPath::parent(path), QString());
        const bool whole = complete && job.succeeded();
        const QString text =
            whole ? tr("Deleted the key %1.") : tr("Deleted a part of the key %1.");
        reportChange(*m_page, whole ? Page::Report::Info : Page::Report::Warning,
                     text.arg(RegistryPath::shown(path)));
    };
    m_page->startJob<RegistryRemovalJob>(tr("Deleting"), std::make_unique<RegistryRemovalJob>(keys),
                                         finished);
}
