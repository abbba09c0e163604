#pragma once

#include "inspection/registry/StoreComparisonJob.h"
#include "inspection/registry/StoreSavingGuard.h"

#include <QObject>
#include <QPointer>

/// Watches the store and its file, at the cost of a `stat` a look: whether this process has changed
/// the store, and whether another program has changed the file behind it.
///
/// Each change of the store in this process ends with the store saving itself, which a
/// StoreSavingGuard sees; that is the sign of it. The store reads its file only when it saves
/// itself, or when the host library tells it to: until then it does not know what another program
/// has done to the file. A file that has changed without that is compared with the store, because
/// the host library may save it by itself, too.
class StoreWatch : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        InStep,   ///< the store holds what its file says, or will be saved soon
        Unknown,  ///< to be found out by a comparison
        Vanished, ///< the file is gone
        Replaced, ///< another file stands in its place, and the store has not read it
        Changed,  ///< the file has been written to, and the store has not read it
        Damaged,  ///< the file has lines that are no entries, which the next saving drops
        Unsaved   ///< the last saving has failed: the store holds changes that the file lacks
    };

    /// Takes the store to be in step with its file; where there is none, that is to be found out.
    /// Where others watch the store already, it begins with what the earliest of them has seen.
    StoreWatch();
    ~StoreWatch() override;

    StoreWatch(const StoreWatch&) = delete;
    StoreWatch& operator=(const StoreWatch&) = delete;

    State state();
    /// Takes over what a comparison that has been finished has found out.
    void settle(const StoreComparisonJob& comparison);

    /// The file that the state is about.
    const FileStamp& file() const { return m_seen.stamp(); }

    /// True when the store has saved itself while its file was gone: then it has lost everything
    /// but its last changes.
    bool hasLost() const { return m_hasLost; }

    /// Grows with each saving that has been found to have failed, but for trials to save the same.
    int failedSavings() const { return m_failedSavings; }

    /// Grows with everything that may have changed the store.
    int revision();

    /// What has happened to the file and what that means, in words; empty where it is in step.
    QString text();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void attach();
    bool takeOver(StoreWatch& earlier);
    void takeSaving();
    void takeOutcome(const StoreSavingGuard::Outcome& outcome);
    void takeSaved(const KnownFile& file);
    void takeSame(const KnownFile& file);
    State changedState();
    State differenceState() const;
    bool mayDiffer();
    bool hasReadDifference() const;
    QString withConsequence(const QString& event) const;

    QPointer<QObject> m_store;
    std::shared_ptr<StoreSavingGuard> m_guard;
    KnownFile m_saved; ///< when the store and it were in step last
    KnownFile m_seen;  ///< the one that the state is about
    State m_state = State::InStep;
    std::optional<StoreComparisonJob::Difference> m_difference;
    bool m_hasFailed = false;     ///< the last saving
    bool m_isDamaged = false;     ///< a file that differs from what the store holds
    bool m_isFirst = true;        ///< nobody has asked for the state yet
    bool m_isDamageKnown = false; ///< whether the file is damaged
    bool m_hasLost = false;
    int m_failedSavings = 0;
    int m_revision = 0;
};
