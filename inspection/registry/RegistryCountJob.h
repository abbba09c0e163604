#pragma once

#include "inspection/Job.h"
#include "inspection/registry/RegistryWalk.h"

/// Counts what would go with a key: all keys and values below it.
class RegistryCountJob : public Job
{
public:
    explicit RegistryCountJob(const QString& path);

    bool step() override;
    /// The number of values counted.
    QString progress() const override;

    /// The key and all keys below it, each before those below.
    const QStringList& keys() const { return m_keys; }
    int values() const { return m_walk.values(); }

private:
    RegistryWalk m_walk;
    QStringList m_keys;
};
