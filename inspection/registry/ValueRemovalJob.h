#pragma once

#include "inspection/Job.h"
#include "inspection/registry/RegistryValueName.h"
#include "inspection/registry/StoreRecorder.h"
#include "inspection/registry/StoreSaveBlocker.h"

#include <memory>
#include <vector>

/// Deletes values one by one. Cancelled half-way it leaves what it has not reached. The store saves
/// itself when the job is destroyed, not before.
class ValueRemovalJob : public Job
{
public:
    using Value = RegistryValueName;

    /// `recorder` records what goes.
    explicit ValueRemovalJob(std::vector<Value> values, std::shared_ptr<StoreRecorder> recorder =
                                                            std::make_shared<StoreRecorder>());

    bool step() override;
    /// The number of values deleted.
    QString progress() const override;

    std::size_t removed() const { return m_next; }

private:
    StoreSaveBlocker m_blocker;
    std::vector<Value> m_values;
    std::shared_ptr<StoreRecorder> m_recorder;
    std::size_t m_next = 0;
};
