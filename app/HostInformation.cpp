#include "app/HostInformation.h"

#include "host/HostLibraries.h"

#include <QFileInfo>

#include <dlfcn.h>

// Whoever defines setPlatformServices is the host library.
QString HostInformation::libraryPath()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&setPlatformServices), &info) == 0)
        return QString();
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absoluteFilePath();
}

QString HostInformation::language()
{
    return tr("English", "name of the interface's language");
}
