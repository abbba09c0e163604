#include "inspection/registry/TakenName.h"

#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreEntry.h"

#include <QCoreApplication>

namespace {

struct TakenName
{
    Q_DECLARE_TR_FUNCTIONS(TakenName)
};

} // namespace

QString takenKeyText(const QString& path)
{
    return isRegistryKey(path) || StoreEntry::read(path)
               ? TakenName::tr("%1 is there already.").arg(RegistryPath::shown(path))
               : QString();
}

QString takenValueText(const QString& key, const QString& name)
{
    return StoreEntry::read(StoreEntry::ofValue(key, name))
               ? TakenName::tr("%1 has a value \"%2\" already.").arg(RegistryPath::shown(key), name)
               : QString();
}
