#pragma once

#include "inspection/registry/RegistryIndex.h"
#include "inspection/registry/RegistryKey.h"

#include <QStringList>
#include <QVariant>

/// What a key holds. Names come from the store in one go; values are read through the service.
struct RegistryListing
{
    /// Sub-keys as RegEnumKeyW lists them.
    QStringList keys;
    /// Keys that have been created and hold nothing yet: RegOpenKeyExW opens them, but enumeration
    /// does not list them. Until then they are entries of this key, without a value.
    QStringList createdKeys;
    /// Values as RegEnumValueW lists them, the marks among them.
    QStringList values;
    /// Entries without a value: the marks that the creation of a key leaves in its parent. They
    /// stay when the key has got its contents.
    QStringList marks;

    /// Both kinds of sub-keys together, sorted.
    QStringList allKeys() const;
};

RegistryListing listRegistryKey(const RegistryIndex& index, const QString& path);

/// True when there are sub-keys of either kind.
bool hasSubKeys(const RegistryIndex& index, const QString& path);

/// The names of the values as they are now in the key that the service opens for this path.
QStringList registryValueNames(const QString& path);

/// A key and all keys below it, as they are now, each before those below; also where there is none.
QStringList registryKeysFrom(const QString& path);

/// True when anything lies below this path now.
bool isRegistryGroup(const QString& path);

/// True when there is an entry now, with or without a value.
bool hasRegistryEntry(const QString& path);

/// True when there is a key now, be it one that has been created and holds nothing.
bool isRegistryKey(const QString& path);

/// The entry itself, past the service: raw.
QVariant rawRegistryEntry(const QString& path);

/// A value that is listed in the root itself, with its type, which the call that reads it does not
/// tell. `root` is the root.
RegistryReading readAtRegistryRoot(const RegistryKey& root, const QString& name);

/// What the file holds for an entry, as text.
QString rawRegistryText(const QVariant& entry);
