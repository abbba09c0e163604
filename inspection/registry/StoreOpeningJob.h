#pragma once

#include "inspection/Job.h"

#include <QStringList>

/// Makes the store parse its file in small steps. By itself it parses a section when something in
/// it is asked for first, and all of them at once when it is listed, which holds the window up
/// where the file is large.
class StoreOpeningJob : public Job
{
public:
    /// Looks for the sections in the store's file. One that is missed does no harm: it is
    /// parsed with the first listing.
    StoreOpeningJob();

    /// The top-level groups that have a section in the file; the empty one holds what stands in
    /// none. For tests: which sections QSettings has parsed cannot be asked.
    const QStringList& sections() const { return m_sections; }

    /// Has the next section parsed.
    bool step() override;

private:
    QStringList m_sections;
    int m_at = 0;
};
