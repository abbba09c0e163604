#pragma once

#include "inspection/Job.h"
#include "inspection/registry/ListedValue.h"
#include "inspection/registry/RegistryWalk.h"

#include <vector>

/// Looks for entries that a host library cannot read, or reads otherwise than they are written, or
/// finds elsewhere, from one key downwards.
class RegistryCheckJob : public Job
{
public:
    struct Finding
    {
        QString path; ///< of the key
        QString name; ///< of the value; empty: the key itself
        QString raw;  ///< the stored text
        QString reason;
        bool isReadable = false;
    };

    explicit RegistryCheckJob(const QString& path) : m_walk(path) {}

    /// Looks at one key or one value.
    bool step() override;
    /// The number of values looked at.
    QString progress() const override;

    const std::vector<Finding>& findings() const { return m_findings; }

private:
    void enterKey();
    void lookAtValue(const ListedValue& value);

    RegistryWalk m_walk;
    std::vector<ListedValue> m_values; ///< of the key that was entered last, still to be looked at
    int m_looked = 0;
    std::vector<Finding> m_findings;
};
