#include "inspection/registry/ImportCheck.h"

#include "inspection/registry/RegistryKey.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/UnkeptName.h"
#include "platform/registry/ValueChange.h"

using Action = RegFileEntry::Action;

namespace {

bool isWithoutData(const RegFileEntry& entry)
{
    return entry.type == REG_NONE && entry.data.isEmpty();
}

} // namespace

ImportCheck::ImportCheck(const RegFileEntry& entry) : m_entry(entry)
{
    if (entry.action == Action::Malformed)
        refuse(entry.problem);
    else
        checkKey();
    if (entry.action == Action::SetValue || entry.action == Action::DeleteValue)
        checkName();
    if (entry.action == Action::SetValue)
        checkData();
}

// Intended: Windows writes a value without a type and without data as an empty list of bytes. The
// service takes REG_NONE for a number, and stores nothing without a byte.
QByteArray ImportCheck::dataToSet(const RegFileEntry& entry)
{
    if (isWithoutData(entry))
        return QByteArray(sizeof(quint32), '\0');
    return entry.type == REG_SZ ? registryTextData(entry.text) : entry.data;
}

void ImportCheck::refuse(const QString& why)
{
    m_outcome = Outcome::Refused;
    m_remarks = QStringList(why);
}

// Of a statement that is refused nothing but the reason is told.
void ImportCheck::remark(const QString& what)
{
    if (what.isEmpty() || m_outcome == Outcome::Refused)
        return;
    m_outcome = Outcome::Altered;
    m_remarks.append(what);
}

void ImportCheck::checkKey()
{
    const QString root = m_entry.key.section(QLatin1Char('\\'), 0, 0);
    if (!root.startsWith(QLatin1String("HKEY_"), Qt::CaseInsensitive) ||
        !RegistryPath::parse(m_entry.key, m_path))
        return refuse(tr("\"%1\" is not one of the root keys.").arg(root));
    if (m_entry.key.contains(QLatin1Char('/')))
        remark(tr("\"/\" in a key's name separates keys like \"\\\"."));
    if (m_entry.action == Action::CreateKey)
        remark(unkeptKeyText({}, m_path));
    if (m_entry.action == Action::DeleteKey)
        checkKeyDeletion();
}

// The service deletes a value of the same name along with the key.
void ImportCheck::checkKeyDeletion()
{
    if (m_path.isEmpty())
        return refuse(tr("A root key cannot be deleted."));
    remark(tr("Deletes the key with everything below it."));
    if (!rawRegistryEntry(m_path).isNull())
        remark(tr("The value \"%1\" of %2 goes with it.")
                   .arg(RegistryPath::name(m_path),
                        RegistryPath::shown(RegistryPath::parent(m_path))));
}

// The service deletes a key of the same name along with the value.
void ImportCheck::checkValueDeletion(const QString& name)
{
    if (m_path.isEmpty())
        return remark(tr("Deletes the key \"%1\" below the root with everything in it.")
                          .arg(QString(name).replace(QLatin1Char('/'), QLatin1Char('\\'))));
    const QString key = RegistryPath::join(m_path, name);
    if (isRegistryGroup(key))
        remark(tr("The key %1 goes with it, with everything in it.").arg(RegistryPath::shown(key)));
}

void ImportCheck::checkName()
{
    if (m_entry.name.isEmpty())
        return refuse(tr("The default value, which has no name, cannot be stored."));
    const bool deletes = m_entry.action == Action::DeleteValue;
    const QString name = RegistryPath::slashed(m_entry.name);
    if (name.isEmpty())
        return refuse(tr("A name of separators alone names no value."));
    if (m_entry.name.contains(QLatin1Char('\\')) || m_entry.name.contains(QLatin1Char('/')))
        remark(deletes ? tr("The separators in the name lead to a value of a sub-key.")
                       : tr("The separators in the name put the value into a sub-key."));
    if (deletes)
        return checkValueDeletion(name);
    if (m_path.isEmpty())
        remark(tr("Directly under a root, it is kept in a key of its own name."));
    remark(unkeptValueText(m_path, m_entry.name));
}

void ImportCheck::checkData()
{
    const ValueChange change(m_entry.type, dataToSet(m_entry));
    const QStringList remarks = change.remarks();
    if (change.outcome() == ValueChange::Outcome::Refused)
        return refuse(remarks.join(QLatin1Char(' ')));
    for (const QString& what : remarks)
        remark(what);
    if (isWithoutData(m_entry))
        remark(tr("It has no data and becomes the number 0."));
}
