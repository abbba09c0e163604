#include "tests/inspection/registry/RegistryTest.h"

#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"

#include <QSettings>

RegistryTest::RegistryTest()
{
    setPlatformServices(&g_PlatformServices);
    g_globalSettings->clear();
}

RegistryTest::~RegistryTest()
{
    g_globalSettings->clear();
}

void RegistryTest::store(const QString& path, const QVariant& entry)
{
    g_globalSettings->setValue(path, entry);
}

QString RegistryTest::stored(const QString& path)
{
    return g_globalSettings->value(path, QStringLiteral("(none)")).toString();
}

bool RegistryTest::holds(const QString& path)
{
    return g_globalSettings->contains(path);
}
