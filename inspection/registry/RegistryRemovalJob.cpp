#include "inspection/registry/RegistryRemovalJob.h"

#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreEntry.h"

#include <QLocale>

RegistryRemovalJob::RegistryRemovalJob(const QStringList& keys,
                                       std::shared_ptr<StoreRecorder> recorder)
    : m_keys(keys), m_recorder(std::move(recorder))
{
}

bool RegistryRemovalJob::step()
{
    if (m_keys.isEmpty())
        return false;
    if (!m_key)
        openLast();
    else if (!m_values.isEmpty())
        removeLastValue();
    else
        removeLastKey();
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

void RegistryRemovalJob::removeLastValue()
{
    const QString name = m_values.takeLast();
    m_recorder->watchTree(StoreEntry::deletedWithValue(m_keys.last(), name));
    m_key->removeValue(name);
    m_recorder->record();
    ++m_removed;
}

void RegistryRemovalJob::removeLastKey()
{
    const QString path = m_keys.takeLast();
    m_key.reset();
    m_recorder->watchTree(RegistryPath::slashed(path));
    if (RegistryKey(QString()).removeKey(path) != ERROR_SUCCESS)
        m_succeeded = false;
    m_recorder->record();
}
