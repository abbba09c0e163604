#pragma once

#include "inspection/Job.h"
#include "inspection/registry/ImportPlan.h"
#include "inspection/registry/StoreRecorder.h"
#include "inspection/registry/StoreSaveBlocker.h"

#include <memory>

class RegistryRemovalJob;

/// Carries out the plan of an import through the registry service. Cancelled half-way it leaves
/// what it has not reached as it was. The store saves itself when the job is destroyed, not before.
class RegistryApplyJob : public Job
{
public:
    /// `recorder` records what becomes of the entries.
    explicit RegistryApplyJob(
        std::shared_ptr<const ImportPlan> plan,
        std::shared_ptr<StoreRecorder> recorder = std::make_shared<StoreRecorder>());
    ~RegistryApplyJob() override;

    /// Carries out one statement that is not refused, or a small piece of one that deletes a key.
    bool step() override;
    /// The number of statements carried out.
    QString progress() const override;

    /// How many statements have been carried out, and how many of those that were not refused
    /// beforehand the service failed.
    int applied() const { return m_applied; }
    int failed() const { return m_failed; }

private:
    bool carryOut(const RegFileEntry& entry);
    void beginRemoval(const RegFileEntry& entry);
    void continueRemoval();
    void count(bool done) { ++(done ? m_applied : m_failed); }

    StoreSaveBlocker m_blocker;
    std::shared_ptr<const ImportPlan> m_plan;
    std::shared_ptr<StoreRecorder> m_recorder;
    std::size_t m_next = 0;
    std::unique_ptr<RegistryRemovalJob> m_removal; ///< null unless a key is being deleted
    int m_applied = 0;
    int m_failed = 0;
};
