#include "inspection/registry/RegistryRemovalJob.h"

#include "inspection/registry/RegistryListing.h"

#include <QLocale>

RegistryRemovalJob::RegistryRemovalJob(const QStringList& keys) : m_keys(keys) {}

bool RegistryRemovalJob::step()
{
    if (m_keys.isEmpty())
        return false;
    if (!m_key) {
        openLast();
        return true;
    }
    if (!m_values.isEmpty()) {
        m_key->removeValue(m_values.takeLast());
        ++m_removed;
        return true;
    }
    m_key.reset();
    if (RegistryKey(QString()).removeKey(m_keys.takeLast()) != ERROR_SUCCESS)
        m_succeeded = false;
    return true;
}

QString RegistryRemovalJob::progress() const
{
    return QLocale().toString(m_removed);
}

void RegistryRemovalJob::openLast()
{
    m_key = std::make_unique<RegistryKey>(m_keys.last());
    m_values = registryValueNames(m_keys.last());
}
