#pragma once

#include "inspection/Job.h"
#include "inspection/registry/StoreChange.h"

#include <QStringList>

/// Reads a key with everything below it into the change that gives the key another path, or puts a
/// copy there. Changes nothing. The value that has the key's name stays where it is.
class KeyMovePlanJob : public Job
{
public:
    /// What becomes of the key at its old path.
    enum class Original
    {
        Goes,
        Stays
    };

    /// Neither path is below the other; neither is the root.
    KeyMovePlanJob(const QString& from, const QString& to, Original original = Original::Goes);

    /// Reads one entry; the first step lists them.
    bool step() override;
    /// The number of entries read.
    QString progress() const override;

    /// Complete once the job is done.
    StoreChange takeChange() { return std::move(m_change); }

private:
    void list();

    QString m_from;
    QString m_to;
    Original m_original;
    QStringList m_paths; ///< of the entries that move
    int m_next = -1;     ///< before the first step
    StoreChange m_change;
};
