#pragma once

#include "inspection/Job.h"
#include "inspection/registry/StoreSaveBlocker.h"

#include <QString>

#include <vector>

/// Deletes values one by one. Cancelled half-way it leaves what it has not reached. The store saves
/// itself when the job is destroyed, not before.
class ValueRemovalJob : public Job
{
public:
    struct Value
    {
        QString key; ///< path of the key in which it is deleted
        QString name;
    };

    explicit ValueRemovalJob(std::vector<Value> values);

    bool step() override;
    /// The number of values deleted.
    QString progress() const override;

    std::size_t removed() const { return m_next; }

private:
    StoreSaveBlocker m_blocker;
    std::vector<Value> m_values;
    std::size_t m_next = 0;
};
