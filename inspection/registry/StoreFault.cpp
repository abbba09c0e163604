#include "inspection/registry/StoreFault.h"

#include "inspection/registry/RawStore.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

struct StoreFault
{
    Q_DECLARE_TR_FUNCTIONS(StoreFault)
};

// Saving puts a new file into the folder, beside the one that it replaces.
bool isSaved()
{
    const QFileInfo folder(QFileInfo(RawStore::fileName()).absolutePath());
    return RawStore::isWritable() && folder.isWritable();
}

} // namespace

QString storeFault()
{
    if (!RawStore::exists() || isSaved())
        return QString();
    return StoreFault::tr("The store %1 cannot be written: changes last until the program ends.")
        .arg(RawStore::fileName());
}
