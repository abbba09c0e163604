#pragma once

#include "inspection/Job.h"
#include "inspection/registry/StoreRecorder.h"
#include "inspection/registry/StoreSaveBlocker.h"

#include <QSet>

#include <memory>

/// Makes a change of the settings store, or takes it back, entry by entry, each as it stood.
/// Entries that somebody else has changed meanwhile are found first, before anything is written.
/// Cancelled half-way it can be started again: what is done already stays so. The store saves
/// itself when the job is destroyed, not before.
class StoreChangeJob : public Job
{
public:
    enum class Direction
    {
        Make,
        TakeBack
    };

    /// What becomes of the entries that somebody else has changed.
    enum class Others
    {
        StopAll,  ///< where there is one, nothing is changed at all
        LeaveBe,  ///< they stay as they are
        Overwrite ///< they get what they are to be all the same
    };

    /// `log` gets a line of the audit trail for each entry, as that of a StoreRecorder does.
    StoreChangeJob(std::shared_ptr<const StoreChange> change, Direction direction, Others others,
                   StoreRecorder::Log log = {});

    /// Looks at one entry, or changes one.
    bool step() override;
    /// The number of entries changed.
    QString progress() const override;

    /// The paths of the entries that somebody else has changed, in their order.
    const QStringList& foreign() const { return m_foreign; }
    /// True where nothing has been changed because of them.
    bool isStopped() const { return m_others == Others::StopAll && !m_foreign.isEmpty(); }
    /// How many entries have been left as they are because of that.
    int leftBe() const { return m_others == Others::LeaveBe ? m_foreign.size() : 0; }

private:
    using Entry = std::optional<QVariant>;

    const Entry& from(const EntryChange& change) const;
    const Entry& to(const EntryChange& change) const;
    bool isLeft(const EntryChange& change) const;
    void look(const EntryChange& change);
    void removeEntry(const EntryChange& change);
    void writeEntry(const EntryChange& change);
    void told(const EntryChange& change, const Entry& before);

    StoreSaveBlocker m_blocker;
    std::shared_ptr<const StoreChange> m_change;
    Direction m_direction;
    Others m_others;
    LimitedLines m_lines;
    std::size_t m_next = 0; ///< counts through all entries three times
    QStringList m_foreign;
    QSet<QString> m_left;
    int m_changed = 0;
};
