#include "inspection/registry/RegistryListing.h"

#include "host/HostLibraries.h"
#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryPath.h"
#include "platform/PlatformRegisterManagerImp.h"

#include <QSet>
#include <QSettings>

#include <algorithm>
#include <climits>

namespace {

// Enters a group of the store for as long as it lives.
class GroupScope
{
public:
    explicit GroupScope(const QString& path) { g_globalSettings->beginGroup(path); }
    ~GroupScope() { g_globalSettings->endGroup(); }

    GroupScope(const GroupScope&) = delete;
    GroupScope& operator=(const GroupScope&) = delete;
};

// To be asked within the key's group.
bool isMark(const QString& name)
{
    return g_globalSettings->value(name).isNull();
}

QStringList without(const QStringList& names, const QStringList& others)
{
    QStringList rest;
    std::set_difference(names.cbegin(), names.cend(), others.cbegin(), others.cend(),
                        std::back_inserter(rest));
    return rest;
}

} // namespace

QStringList RegistryListing::allKeys() const
{
    QStringList names = keys + createdKeys;
    std::sort(names.begin(), names.end());
    return names;
}

RegistryListing listRegistryKey(const RegistryIndex& index, const QString& path)
{
    RegistryListing listing;
    if (!g_globalSettings)
        return listing;
    const RegistryIndex::Children children = index.children(path);
    listing.keys = children.groups;
    listing.values = children.entries;
    const GroupScope group(path);
    std::copy_if(listing.values.cbegin(), listing.values.cend(), std::back_inserter(listing.marks),
                 isMark);
    listing.createdKeys = without(listing.marks, listing.keys);
    return listing;
}

bool hasSubKeys(const RegistryIndex& index, const QString& path)
{
    if (!g_globalSettings)
        return false;
    const RegistryIndex::Children children = index.children(path);
    if (!children.groups.isEmpty())
        return true;
    const GroupScope group(path);
    return std::any_of(children.entries.cbegin(), children.entries.cend(), isMark);
}

QStringList registryValueNames(const QString& path)
{
    if (!g_globalSettings)
        return {};
    const GroupScope group(redirectedPath(path));
    return g_globalSettings->childKeys();
}

QStringList registryKeysFrom(const QString& path)
{
    QSet<QString> keys = {path};
    if (g_globalSettings) {
        const GroupScope group(path);
        const QStringList entries = g_globalSettings->allKeys();
        for (const QString& entry : entries) {
            QString key = RegistryPath::join(path, entry).section(QLatin1Char('/'), 0, -2);
            for (; !keys.contains(key); key = RegistryPath::parent(key))
                keys.insert(key);
        }
    }
    QStringList sorted = keys.values();
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

bool isRegistryGroup(const QString& path)
{
    if (!g_globalSettings)
        return false;
    const GroupScope group(path);
    return !g_globalSettings->childKeys().isEmpty() || !g_globalSettings->childGroups().isEmpty();
}

bool hasRegistryEntry(const QString& path)
{
    return g_globalSettings && g_globalSettings->contains(path);
}

bool isRegistryKey(const QString& path)
{
    return path.isEmpty() || isRegistryGroup(path) ||
           (hasRegistryEntry(path) && rawRegistryEntry(path).isNull());
}

QVariant rawRegistryEntry(const QString& path)
{
    return g_globalSettings ? g_globalSettings->value(path) : QVariant();
}

RegistryReading readAtRegistryRoot(const RegistryKey& root, const QString& name)
{
    RegistryReading reading = root.readListed(name);
    unsigned int size = UINT_MAX;
    QVariant entry = rawRegistryEntry(name);
    QVarToRegValue(entry, &reading.type, nullptr, &size);
    return reading;
}

QString rawRegistryText(const QVariant& entry)
{
    if (entry.type() == QVariant::StringList)
        return entry.toStringList().join(QLatin1String(", "));
    return entry.toString();
}
