#include "inspection/registry/TypedAddress.h"

#include "inspection/registry/RegistryPath.h"

namespace {

bool isAbbreviatedRoot(const QString& level)
{
    const QStringList roots = {QStringLiteral("HKCU"), QStringLiteral("HKLM"),
                               QStringLiteral("HKCR"), QStringLiteral("HKU")};
    return roots.contains(level, Qt::CaseInsensitive);
}

} // namespace

QStringList pathsOfAddress(const QString& address)
{
    QStringList paths;
    QString path;
    if (!RegistryPath::parse(address.trimmed(), path))
        return paths;
    paths.append(path);
    if (isAbbreviatedRoot(path.section(QLatin1Char('/'), 0, 0)))
        paths.append(path.section(QLatin1Char('/'), 1));
    if (RegistryPath::parse(address, path))
        paths.prepend(path);
    return paths;
}
