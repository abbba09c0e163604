#pragma once

#include "inspection/Job.h"
#include "window/SortKey.h"

#include <functional>
#include <vector>

/// Sorts the records of a table in small steps, because a table may have very many, and because
/// asking a service for what a cell shows may take long. Records that compare equal keep their
/// order.
class RowSortingJob : public Job
{
public:
    /// What the record of this number is sorted by; asked for once for each.
    using KeyOf = std::function<SortKey(int record)>;

    RowSortingJob(int count, KeyOf keyOf, Qt::SortOrder order);

    bool step() override;

    /// The numbers of the records in their new order, once the job is done.
    const std::vector<int>& order() const { return m_order; }

private:
    bool makeKeys();
    void sortRun();
    void mergeRuns();
    bool isBefore(int a, int b) const;

    KeyOf m_keyOf;
    Qt::SortOrder m_direction;
    std::vector<SortKey> m_keys; ///< of the records, in the order of the records
    std::vector<int> m_order;
    int m_sorted = 0; ///< what lies before it is sorted in runs of m_run
    int m_run;        ///< length of the runs that are sorted
    int m_merged = 0; ///< what lies before it is sorted in runs of twice that length
};
