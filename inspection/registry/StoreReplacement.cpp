#include "inspection/registry/StoreReplacement.h"

#include "host/HostLibraries.h"
#include "inspection/registry/RawStore.h"

StoreReplacement::StoreReplacement(const QString& file)
    : m_store(RawStore::exists() ? RawStore::opened(file)
                                 : std::make_unique<QSettings>(file, QSettings::IniFormat)),
      m_replaced(g_globalSettings)
{
    g_globalSettings = m_store.get();
}

StoreReplacement::~StoreReplacement()
{
    g_globalSettings = m_replaced;
}
