#include "inspection/registry/StoreEntry.h"

#include "inspection/registry/RawStore.h"
#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryPath.h"

#include <utility>
#include <vector>

namespace {

// What QSettings takes for an entry without a name; of an empty one it warns.
QString nameToAsk(const QString& path)
{
    const QString name = RegistryPath::name(path);
    return name.isEmpty() ? QStringLiteral("/") : name;
}

} // namespace

std::optional<QVariant> StoreEntry::read(const QString& path)
{
    const RawStore group(RegistryPath::parent(path));
    const QString name = nameToAsk(path);
    return group.contains(name) ? std::make_optional(group.value(name)) : std::nullopt;
}

QStringList StoreEntry::below(const QString& path)
{
    QStringList paths = RawStore(path).allEntries();
    for (QString& entry : paths)
        entry = RegistryPath::join(path, entry);
    return paths;
}

void StoreEntry::write(const QString& path, const QVariant& value)
{
    RawStore group(RegistryPath::parent(path));
    group.set(nameToAsk(path), value);
}

void StoreEntry::remove(const QString& path)
{
    const QString name = RegistryPath::name(path);
    if (name.isEmpty()) // QSettings would remove everything in the group
        return;
    std::vector<std::pair<QString, QVariant>> group;
    const QStringList paths = below(path);
    for (const QString& each : paths)
        group.emplace_back(each, read(each).value_or(QVariant()));
    RawStore(RegistryPath::parent(path)).remove(name);
    for (const auto& [each, value] : group)
        write(each, value);
}

QString StoreEntry::ofValue(const QString& key, const QString& name)
{
    const QString group = key.isEmpty() ? name : redirectedPath(key);
    return RegistryPath::join(group, RegistryPath::slashed(name));
}

QString StoreEntry::deletedWithValue(const QString& key, const QString& name)
{
    const QString group = redirectedPath(key);
    const QString below = RegistryPath::slashed(name);
    return below.isEmpty() ? group : RegistryPath::join(group, below);
}
