#include "inspection/registry/RawStore.h"

#include "host/HostLibraries.h"

RawStore::RawStore(const QString& group, Reach reach) : m_store(g_globalSettings)
{
    if (!m_store)
        return;
    m_group.emplace(*m_store, group);
    m_hadFallbacks = m_store->fallbacksEnabled();
    if (reach == Reach::OwnFile)
        m_store->setFallbacksEnabled(false);
}

RawStore::~RawStore()
{
    if (m_store)
        m_store->setFallbacksEnabled(m_hadFallbacks);
}

bool RawStore::exists()
{
    return g_globalSettings != nullptr;
}

QString RawStore::fileName()
{
    return g_globalSettings ? g_globalSettings->fileName() : QString();
}

bool RawStore::isIniFile()
{
    return g_globalSettings && (g_globalSettings->format() == QSettings::IniFormat ||
                                g_globalSettings->format() == QSettings::NativeFormat);
}

bool RawStore::isWritable()
{
    return g_globalSettings && g_globalSettings->isWritable();
}

bool RawStore::isInaccessible()
{
    return g_globalSettings && g_globalSettings->status() == QSettings::AccessError;
}

bool RawStore::save()
{
    if (g_globalSettings)
        g_globalSettings->sync();
    return g_globalSettings && !isInaccessible();
}

bool RawStore::hasMetDamage()
{
    return g_globalSettings && g_globalSettings->status() == QSettings::FormatError;
}

bool RawStore::hasFailed()
{
    return g_globalSettings && g_globalSettings->status() != QSettings::NoError;
}

QObject* RawStore::receiver()
{
    return g_globalSettings;
}

std::unique_ptr<QSettings> RawStore::opened(const QString& file)
{
    auto other = std::make_unique<QSettings>(file, g_globalSettings->format());
    other->setIniCodec(g_globalSettings->iniCodec());
    return other;
}

QStringList RawStore::allEntries() const
{
    return m_store ? m_store->allKeys() : QStringList();
}

QStringList RawStore::entries() const
{
    return m_store ? m_store->childKeys() : QStringList();
}

bool RawStore::isEmpty() const
{
    return !m_store || (m_store->childKeys().isEmpty() && m_store->childGroups().isEmpty());
}

bool RawStore::contains(const QString& name) const
{
    return m_store && m_store->contains(name);
}

QVariant RawStore::value(const QString& name) const
{
    return m_store ? m_store->value(name) : QVariant();
}

void RawStore::set(const QString& name, const QVariant& value)
{
    if (m_store)
        m_store->setValue(name, value);
}

void RawStore::remove(const QString& name)
{
    if (m_store)
        m_store->remove(name);
}
