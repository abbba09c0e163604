#pragma once

#include "inspection/Job.h"
#include "inspection/registry/RegistryKey.h"
#include "inspection/registry/StoreRecorder.h"
#include "inspection/registry/StoreSaveBlocker.h"

#include <QStringList>

#include <memory>

/// Deletes keys value by value, the lowest first. Cancelled half-way it leaves what it has not
/// reached. The store saves itself when the job is destroyed, not before.
class RegistryRemovalJob : public Job
{
public:
    /// A key and all keys below it, each before those below, as RegistryWalk visits them.
    /// `recorder` records what goes.
    explicit RegistryRemovalJob(const QStringList& keys, std::shared_ptr<StoreRecorder> recorder =
                                                             std::make_shared<StoreRecorder>());

    bool step() override;
    /// The number of values deleted.
    QString progress() const override;

    /// False where the service has refused to delete a key.
    bool succeeded() const { return m_succeeded; }

private:
    void openLast();
    void removeLastValue();
    void removeLastKey();

    StoreSaveBlocker m_blocker;
    QStringList m_keys;
    std::shared_ptr<StoreRecorder> m_recorder;
    QStringList m_values; ///< of the last key
    std::unique_ptr<RegistryKey> m_key;
    int m_removed = 0;
    bool m_succeeded = true;
};
