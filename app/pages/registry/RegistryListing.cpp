#include "app/pages/registry/RegistryListing.h"

#include "app/pages/registry/RegistryPath.h"
#include "host/HostLibraries.h"

#include <QSettings>

#include <algorithm>

namespace {

class GroupScope
{
public:
    explicit GroupScope(const QString& path) { g_globalSettings->beginGroup(path); }
    ~GroupScope() { g_globalSettings->endGroup(); }

    GroupScope(const GroupScope&) = delete;
    GroupScope& operator=(const GroupScope&) = delete;
};

bool isMark(const QString& name)
{
    return g_globalSettings->value(name).isNull();
}

} // namespace

RegistryListing listRegistryKey(const QString& path)
{
    RegistryListing listing;
    if (!g_globalSettings)
        return listing;
    const GroupScope group(path);
    listing.keys = g_globalSettings->childGroups();
    listing.values = g_globalSettings->childKeys();
    for (const QString& name : qAsConst(listing.values)) {
        if (isMark(name))
            listing.marks.append(name);
    }
    std::set_difference(listing.marks.cbegin(), listing.marks.cend(), listing.keys.cbegin(),
                        listing.keys.cend(), std::back_inserter(listing.createdKeys));
    return listing;
}

QStringList allSubKeys(const RegistryListing& listing)
{
    QStringList names = listing.keys + listing.createdKeys;
    std::sort(names.begin(), names.end());
    return names;
}

bool hasSubKeys(const QString& path)
{
    if (!g_globalSettings)
        return false;
    const GroupScope group(path);
    if (!g_globalSettings->childGroups().isEmpty())
        return true;
    const QStringList names = g_globalSettings->childKeys();
    return std::any_of(names.cbegin(), names.cend(), isMark);
}

QVariant rawRegistryEntry(const QString& path)
{
    return g_globalSettings ? g_globalSettings->value(path) : QVariant();
}

QString rawRegistryText(const QVariant& entry)
{
    if (entry.type() == QVariant::StringList)
        return entry.toStringList().join(QLatin1String(", "));
    return entry.toString();
}
