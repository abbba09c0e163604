#include "inspection/registry/StoreFault.h"

#include "host/HostLibraries.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>

namespace {

struct StoreFault
{
    Q_DECLARE_TR_FUNCTIONS(StoreFault)
};

// Saving puts a new file into the folder, beside the one that it replaces.
bool isSaved(const QSettings& store)
{
    const QFileInfo folder(QFileInfo(store.fileName()).absolutePath());
    return store.isWritable() && folder.isWritable();
}

} // namespace

QString storeFault()
{
    if (!g_globalSettings || isSaved(*g_globalSettings))
        return QString();
    return StoreFault::tr("The store %1 cannot be written: changes last until the program ends.")
        .arg(g_globalSettings->fileName());
}
