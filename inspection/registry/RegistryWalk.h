#pragma once

#include "inspection/registry/RegistryIndex.h"
#include "inspection/registry/RegistryKey.h"

#include <QStringList>

#include <memory>

/// Visits a key and all keys below it, each before those below, and the values of each, in small
/// steps that suit a job. Keys that come or go meanwhile do no harm. Marks of created keys
/// count as no values, and neither do those of a key for which the service opens another.
class RegistryWalk
{
public:
    enum class Step
    {
        Key,   ///< a new key: see path()
        Value, ///< a value of that key: see name() and key()
        End
    };

    /// Quick: the store is listed by the first step.
    explicit RegistryWalk(const QString& path);

    Step next();

    QString path() const { return m_path; }
    QString name() const { return m_names.at(m_at); }
    /// The key, open for reading the value.
    const RegistryKey& key();

    int values() const { return m_values; }

private:
    void enter();

    std::shared_ptr<const RegistryIndex> m_index;
    QStringList m_pending; ///< the next one last
    QString m_path;
    QStringList m_names;
    int m_at = -1;
    std::unique_ptr<RegistryKey> m_key;
    int m_values = 0;
};
