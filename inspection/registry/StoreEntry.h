#pragma once

#include <QStringList>
#include <QVariant>

#include <optional>

/// Single entries of the settings store, past the registry service: what they hold is raw. Paths
/// are as in RegistryPath; that of an entry without a name ends with "/".
namespace StoreEntry {

/// What an entry holds; nothing where there is none. The mark of a created key is a null QVariant.
std::optional<QVariant> read(const QString& path);

/// The paths of all entries below one, in which those of a group follow the entry of its name.
QStringList below(const QString& path);

void write(const QString& path, const QVariant& value);

/// Removes an entry, and nothing of the group of the same name. An entry without a name stays.
void remove(const QString& path);

/// The entry in which the service keeps a value that is set in this key.
QString ofValue(const QString& key, const QString& name);

/// The entry that the service removes, with all below it, when a value of this key is deleted.
QString deletedWithValue(const QString& key, const QString& name);

} // namespace StoreEntry
