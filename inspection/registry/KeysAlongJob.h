#pragma once

#include "inspection/Job.h"
#include "inspection/registry/RegistryValueName.h"

#include <QStringList>

#include <vector>

/// Finds the keys that the service deletes along with values, because they have the same names.
class KeysAlongJob : public Job
{
public:
    explicit KeysAlongJob(std::vector<RegistryValueName> values);

    /// Looks for the keys of a few values.
    bool step() override;

    /// The paths of the keys.
    const QStringList& keys() const { return m_keys; }
    const std::vector<RegistryValueName>& values() const { return m_values; }

private:
    void look(const RegistryValueName& value);

    std::vector<RegistryValueName> m_values;
    std::size_t m_next = 0;
    QStringList m_keys;
};
