#pragma once

#include <QStringList>

#include <memory>

/// The names of everything in the store, listed in one go: the service lists one name a call and
/// counts from the start each time, and the store itself looks through all that lies below a key.
/// A picture of one moment; the values are read through the service when they are looked at.
class RegistryIndex
{
public:
    struct Children
    {
        /// Sub-keys as RegEnumKeyW lists them.
        QStringList groups;
        /// Values as RegEnumValueW lists them.
        QStringList entries;
    };

    static std::shared_ptr<const RegistryIndex> read();

    /// What is right below a key, each kind sorted. All of them: where there may be very many, a
    /// RegistryIndexReader reads a few at a time.
    Children children(const QString& path) const;

    /// The full paths of all entries, sorted.
    const QStringList& entries() const { return m_entries; }

private:
    QStringList m_entries;
};
