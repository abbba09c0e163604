#include "inspection/registry/RegistryImport.h"

#include "inspection/registry/ImportCheck.h"
#include "inspection/registry/RegistryKey.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/RegistryRemoval.h"

#include <QIODevice>

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

RegistryImport::RegistryImport(std::unique_ptr<QIODevice> file) : m_reader(std::move(file)) {}

RegistryImport::RegistryImport(const QByteArray& file) : m_reader(file) {}

RegistryImport::~RegistryImport() = default;

RegistryImport::Item RegistryImport::judged(const RegFileEntry& entry)
{
    ImportCheck judge(entry);
    return {entry, judge.verdict(), judge.remark()};
}

bool RegistryImport::read()
{
    RegFileEntry entry;
    const RegFileReader::Step step = m_reader.next(entry);
    if (step == RegFileReader::Step::Statement)
        m_items.push_back(judged(entry));
    return step != RegFileReader::Step::End;
}

int RegistryImport::count(Verdict verdict) const
{
    return static_cast<int>(std::count_if(
        m_items.begin(), m_items.end(), [verdict](const Item& i) { return i.verdict == verdict; }));
}

bool RegistryImport::apply()
{
    if (m_removal) {
        removeOn();
        return true;
    }
    while (m_next < m_items.size() && m_items[m_next].verdict == Verdict::Refused)
        ++m_next;
    if (m_next >= m_items.size())
        return false;
    const RegFileEntry& entry = m_items[m_next++].entry;
    if (entry.action == RegFileEntry::Action::DeleteKey)
        beginRemoval(entry);
    else
        count(carryOut(entry));
    return true;
}

// A key may hold anything: the service would delete it in one go.
void RegistryImport::beginRemoval(const RegFileEntry& entry)
{
    QString path;
    RegistryPath::parse(entry.key, path);
    m_removal = std::make_unique<RegistryRemoval>(registryKeysFrom(path));
}

void RegistryImport::removeOn()
{
    if (m_removal->step())
        return;
    count(m_removal->succeeded());
    m_removal = nullptr;
}

bool RegistryImport::carryOut(const RegFileEntry& entry)
{
    QString path;
    RegistryPath::parse(entry.key, path);
    switch (entry.action) {
    case RegFileEntry::Action::CreateKey: return ensureKey(path);
    case RegFileEntry::Action::SetValue:
        return ensureKey(path) &&
               RegistryKey(path).set(entry.name, entry.type, dataOf(entry)) == ERROR_SUCCESS;
    case RegFileEntry::Action::DeleteValue: return removeValue(path, entry.name);
    case RegFileEntry::Action::DeleteKey:
    case RegFileEntry::Action::Malformed: break;
    }
    return false;
}
