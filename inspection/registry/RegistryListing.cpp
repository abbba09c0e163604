#include "inspection/registry/RegistryListing.h"

#include "inspection/registry/RawStore.h"
#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryPath.h"
#include "platform/registry/StoredValue.h"

#include <QSet>

#include <algorithm>

namespace {

bool isMark(const RawStore& key, const QString& name)
{
    return key.value(name).isNull();
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
    if (!RawStore::exists())
        return listing;
    const RegistryIndex::Children children = index.children(path);
    listing.keys = children.groups;
    listing.values = children.entries;
    const RawStore key(path);
    std::copy_if(listing.values.cbegin(), listing.values.cend(), std::back_inserter(listing.marks),
                 [&key](const QString& name) { return isMark(key, name); });
    listing.createdKeys = without(listing.marks, listing.keys);
    return listing;
}

bool hasSubKeys(const RegistryIndex& index, const QString& path)
{
    if (!RawStore::exists())
        return false;
    const RegistryIndex::Children children = index.children(path);
    if (!children.groups.isEmpty())
        return true;
    const RawStore key(path);
    return std::any_of(children.entries.cbegin(), children.entries.cend(),
                       [&key](const QString& name) { return isMark(key, name); });
}

QStringList registryValueNames(const QString& path)
{
    return RawStore(redirectedPath(path)).entries();
}

QStringList registryKeysFrom(const QString& path)
{
    QSet<QString> keys = {path};
    const QStringList entries = RawStore(path).allEntries();
    for (const QString& entry : entries) {
        QString key = RegistryPath::join(path, entry).section(QLatin1Char('/'), 0, -2);
        for (; !keys.contains(key); key = RegistryPath::parent(key))
            keys.insert(key);
    }
    QStringList sorted = keys.values();
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

bool isRegistryGroup(const QString& path)
{
    return !RawStore(path).isEmpty();
}

bool hasRegistryEntry(const QString& path)
{
    return RawStore().contains(path);
}

bool isRegistryKey(const QString& path)
{
    return path.isEmpty() || isRegistryGroup(path) ||
           (hasRegistryEntry(path) && rawRegistryEntry(path).isNull());
}

QVariant rawRegistryEntry(const QString& path)
{
    return RawStore().value(path);
}

RegistryReading readAtRegistryRoot(const RegistryKey& root, const QString& name)
{
    RegistryReading reading = root.readListed(name);
    const StoredValue stored(rawRegistryEntry(name));
    if (stored.isReadable())
        reading.type = stored.type();
    return reading;
}

QString rawRegistryText(const QVariant& entry)
{
    if (entry.type() == QVariant::StringList)
        return entry.toStringList().join(QLatin1String(", "));
    return entry.toString();
}
