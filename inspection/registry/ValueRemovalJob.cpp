#include "inspection/registry/ValueRemovalJob.h"

#include "inspection/registry/RegistryKey.h"

#include <QLocale>

ValueRemovalJob::ValueRemovalJob(std::vector<Value> values) : m_values(std::move(values)) {}

bool ValueRemovalJob::step()
{
    if (m_next >= m_values.size())
        return false;
    const Value& value = m_values[m_next++];
    RegistryKey(value.key).removeValue(value.name);
    return true;
}

QString ValueRemovalJob::progress() const
{
    return QLocale().toString(static_cast<qulonglong>(m_next));
}
