#include "inspection/registry/ImportPlan.h"

#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "platform/registry/TypeName.h"
#include "platform/registry/ValueChange.h"

#include <QLocale>

#include <algorithm>

namespace {

using Action = RegFileEntry::Action;

void alter(ImportPlan::Statement& statement, const QString& remark)
{
    statement.outcome = ImportCheck::Outcome::Altered;
    if (!statement.remark.isEmpty())
        statement.remark += QLatin1Char(' ');
    statement.remark += remark;
}

QString words(const RegistryReading& reading)
{
    return registryTypeName(reading.type) + QLatin1Char(' ') +
           RegistryFormat::data(reading.type, reading.data);
}

// Directly under a root a value is kept in a key of its own name.
QString entryPathOf(const QString& path, const QString& name)
{
    return RegistryPath::join(path.isEmpty() ? name : path, name);
}

} // namespace

bool ImportPlan::readSome(const RegFileEntry& entry)
{
    return entry.action != Action::Malformed && m_overlaps.readSome(entry);
}

void ImportPlan::add(const RegFileEntry& entry)
{
    const ImportCheck check(entry);
    Statement statement{entry, check.outcome(), check.remark(), {}, false};
    if (check.outcome() != Outcome::Refused) {
        compare(statement);
        overlap(statement);
        m_byLine.insert(entry.line, m_statements.size());
    }
    m_statements.push_back(std::move(statement));
}

void ImportPlan::overlap(Statement& statement)
{
    const QStringList remarks = m_overlaps.add(statement.entry);
    for (const QString& remark : remarks)
        alter(statement, remark);
    const auto replaced = m_byLine.constFind(m_overlaps.replacedLine());
    if (replaced != m_byLine.cend())
        alter(m_statements[*replaced], tr("Line %1 comes later and wins: all root keys are one.")
                                           .arg(QLocale().toString(statement.entry.line)));
}

void ImportPlan::compare(Statement& statement)
{
    const RegFileEntry& entry = statement.entry;
    QString path;
    RegistryPath::parse(entry.key, path);
    if (entry.action == Action::CreateKey)
        statement.isThere = isRegistryKey(path) && !m_overlaps.isDeletedBefore(path);
    if (entry.action != Action::SetValue && entry.action != Action::DeleteValue)
        return;
    const QString entryPath = entryPathOf(path, RegistryPath::slashed(entry.name));
    const QVariant raw = rawRegistryEntry(entryPath);
    if (raw.isNull() || m_overlaps.isDeletedBefore(entryPath))
        return;
    const RegistryReading reading = key(path).read(entry.name);
    statement.before =
        reading.readable ? words(reading) : tr("unreadable: %1").arg(rawRegistryText(raw));
    if (entry.action == Action::DeleteValue)
        return;
    const ValueChange change(entry.type, ImportCheck::dataToSet(entry));
    statement.isThere = change.storedText() == raw.toString();
}

const RegistryKey& ImportPlan::key(const QString& path)
{
    if (!m_key || path != m_keyPath) {
        m_key = std::make_unique<RegistryKey>(path);
        m_keyPath = path;
    }
    return *m_key;
}

int ImportPlan::count(Outcome outcome) const
{
    return static_cast<int>(
        std::count_if(m_statements.begin(), m_statements.end(),
                      [outcome](const Statement& one) { return one.outcome == outcome; }));
}

int ImportPlan::overwritten() const
{
    return static_cast<int>(
        std::count_if(m_statements.begin(), m_statements.end(),
                      [](const Statement& one) { return one.isOverwriting(); }));
}
