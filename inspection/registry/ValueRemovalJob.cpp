#include "inspection/registry/ValueRemovalJob.h"

#include "inspection/registry/RegistryKey.h"
#include "inspection/registry/StoreEntry.h"

#include <QLocale>

ValueRemovalJob::ValueRemovalJob(std::vector<Value> values, std::shared_ptr<StoreRecorder> recorder)
    : m_values(std::move(values)), m_recorder(std::move(recorder))
{
}

bool ValueRemovalJob::step()
{
    if (m_next >= m_values.size())
        return false;
    const Value& value = m_values[m_next++];
    m_recorder->watchTree(StoreEntry::deletedWithValue(value.key, value.name));
    RegistryKey(value.key).removeValue(value.name);
    m_recorder->record();
    return true;
}

QString ValueRemovalJob::progress() const
{
    return QLocale().toString(static_cast<qulonglong>(m_next));
}
