#pragma once

#include "inspection/registry/RegistryKey.h"

#include <QStringList>

#include <memory>

/// Deletes keys value by value, the lowest first, so that many can be deleted in slices. Cancelled
/// half-way it leaves what it has not reached.
class RegistryRemoval
{
public:
    /// A key and all keys below it, each before those below, as RegistryWalk visits them.
    explicit RegistryRemoval(const QStringList& keys);

    /// False at the end.
    bool step();

    int values() const { return m_removed; }
    /// False where the service has refused to delete a key.
    bool succeeded() const { return m_succeeded; }

private:
    void openLast();

    QStringList m_keys;
    QStringList m_values; ///< of the last key
    std::unique_ptr<RegistryKey> m_key;
    int m_removed = 0;
    bool m_succeeded = true;
};
