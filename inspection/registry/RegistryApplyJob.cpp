#include "inspection/registry/RegistryApplyJob.h"

#include "inspection/registry/RegistryKey.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/RegistryRemovalJob.h"
#include "inspection/registry/StoreEntry.h"

#include <QLocale>

namespace {

using Action = RegFileEntry::Action;

// A key has to be there before its values can be set.
bool ensureKey(const QString& path)
{
    if (path.isEmpty() || RegistryKey(path).isOpen())
        return true;
    return RegistryKey(QString()).createKey(path) == ERROR_SUCCESS;
}

bool setValue(const QString& path, const RegFileEntry& entry)
{
    const QByteArray data = ImportCheck::dataToSet(entry);
    return ensureKey(path) && RegistryKey(path).set(entry.name, entry.type, data) == ERROR_SUCCESS;
}

bool removeValue(const QString& path, const QString& name)
{
    const RegistryKey key(path);
    return !key.isOpen() || key.removeValue(name) == ERROR_SUCCESS;
}

QString pathOf(const RegFileEntry& entry)
{
    QString path;
    RegistryPath::parse(entry.key, path);
    return path;
}

// Values and keys are set entry by entry; a deletion takes along what is below.
void watchEntries(StoreRecorder& recorder, const QString& path, const RegFileEntry& entry)
{
    if (entry.action == Action::DeleteValue)
        return recorder.watchTree(StoreEntry::deletedWithValue(path, entry.name));
    if (!path.isEmpty())
        recorder.watch(path);
    if (entry.action == Action::SetValue)
        recorder.watch(StoreEntry::ofValue(path, entry.name));
}

bool isDone(const QString& path, const RegFileEntry& entry)
{
    switch (entry.action) {
    case Action::CreateKey: return ensureKey(path);
    case Action::SetValue: return setValue(path, entry);
    case Action::DeleteValue: return removeValue(path, entry.name);
    case Action::DeleteKey:
    case Action::Malformed: break;
    }
    return false;
}

} // namespace

RegistryApplyJob::RegistryApplyJob(std::shared_ptr<const ImportPlan> plan,
                                   std::shared_ptr<StoreRecorder> recorder)
    : m_plan(std::move(plan)), m_recorder(std::move(recorder))
{
}

RegistryApplyJob::~RegistryApplyJob() = default;

bool RegistryApplyJob::step()
{
    if (m_removal) {
        continueRemoval();
        return true;
    }
    const std::vector<ImportPlan::Statement>& statements = m_plan->statements();
    while (m_next < statements.size() && statements[m_next].outcome == ImportPlan::Outcome::Refused)
        ++m_next;
    if (m_next >= statements.size())
        return false;
    const RegFileEntry& entry = statements[m_next++].entry;
    if (entry.action == Action::DeleteKey)
        beginRemoval(entry);
    else
        count(carryOut(entry));
    return true;
}

QString RegistryApplyJob::progress() const
{
    return QLocale().toString(m_applied);
}

bool RegistryApplyJob::carryOut(const RegFileEntry& entry)
{
    const QString path = pathOf(entry);
    watchEntries(*m_recorder, path, entry);
    const bool done = isDone(path, entry);
    m_recorder->record();
    return done;
}

// A key may hold anything, and the service would delete all of it in one call.
void RegistryApplyJob::beginRemoval(const RegFileEntry& entry)
{
    m_removal = std::make_unique<RegistryRemovalJob>(registryKeysFrom(pathOf(entry)), m_recorder);
}

void RegistryApplyJob::continueRemoval()
{
    if (m_removal->step())
        return;
    count(m_removal->succeeded());
    m_removal = nullptr;
}
