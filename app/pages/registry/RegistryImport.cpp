#include "app/pages/registry/RegistryImport.h"

#include "app/pages/registry/ImportJudge.h"
#include "app/pages/registry/RegistryKey.h"
#include "app/pages/registry/RegistryPath.h"

#include <algorithm>

namespace {

// A key has to be there before its values can be set.
bool ensureKey(const QString& path)
{
    if (path.isEmpty() || RegistryKey(path).isOpen())
        return true;
    return RegistryKey(QString()).createKey(path) == ERROR_SUCCESS;
}

QByteArray dataOf(const RegFileEntry& entry)
{
    return entry.type == REG_SZ ? registryTextData(entry.text) : entry.data;
}

bool removeValue(const QString& path, const QString& name)
{
    const RegistryKey key(path);
    return !key.isOpen() || key.removeValue(name) == ERROR_SUCCESS;
}

} // namespace

RegistryImport::Item RegistryImport::judged(const RegFileEntry& entry)
{
    ImportJudge judge(entry);
    return {entry, judge.verdict(), judge.remark()};
}

bool RegistryImport::read()
{
    RegFileEntry entry;
    if (!m_reader.readNext(entry))
        return false;
    m_items.push_back(judged(entry));
    return true;
}

int RegistryImport::count(Verdict verdict) const
{
    return static_cast<int>(std::count_if(
        m_items.begin(), m_items.end(), [verdict](const Item& i) { return i.verdict == verdict; }));
}

bool RegistryImport::apply()
{
    while (m_next < m_items.size() && m_items[m_next].verdict == Verdict::Refused)
        ++m_next;
    if (m_next >= m_items.size())
        return false;
    ++(carryOut(m_items[m_next].entry) ? m_applied : m_failed);
    ++m_next;
    return true;
}

bool RegistryImport::carryOut(const RegFileEntry& entry)
{
    QString path;
    RegistryPath::parse(entry.key, path);
    switch (entry.action) {
    case RegFileEntry::Action::CreateKey: return ensureKey(path);
    case RegFileEntry::Action::DeleteKey:
        return RegistryKey(QString()).removeKey(path) == ERROR_SUCCESS;
    case RegFileEntry::Action::SetValue:
        return ensureKey(path) &&
               RegistryKey(path).set(entry.name, entry.type, dataOf(entry)) == ERROR_SUCCESS;
    case RegFileEntry::Action::DeleteValue: return removeValue(path, entry.name);
    case RegFileEntry::Action::Malformed: break;
    }
    return false;
}
