#pragma once

#include <QStringList>
#include <QVariant>

/// What a key holds, listed in one go from the store: the service lists one name a call and counts
/// from the start each time. The names are the same; the values are read through the service.
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
};

RegistryListing listRegistryKey(const QString& path);

/// Both kinds of sub-keys together, sorted.
QStringList allSubKeys(const RegistryListing& listing);

/// Both kinds of sub-keys, without listing the values apart.
bool hasSubKeys(const QString& path);

/// The entry itself, past the service: raw.
QVariant rawRegistryEntry(const QString& path);

/// What the file holds for an entry, as text.
QString rawRegistryText(const QVariant& entry);
