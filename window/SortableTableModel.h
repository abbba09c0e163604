#pragma once

#include "inspection/JobRunner.h"
#include "window/SortKey.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <memory>
#include <vector>

class RowSortingJob;

/// A table of records whose rows can be sorted by any column. Until that is asked for, and again
/// after `sort(-1)`, the rows stand in the order of the records. A long table is sorted on the
/// event loop; what is selected stays so.
class SortableTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit SortableTableModel(QObject* parent = nullptr);
    ~SortableTableModel() override;

    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    /// The number of the record that stands in a row, and the other way round. Records are
    /// numbered in the order in which they came.
    int recordAt(int row) const;
    int rowOf(int record) const;

protected:
    virtual int recordCount() const = 0;
    /// What the cell of a record is sorted by.
    virtual SortKey sortKey(int record, int column) const = 0;

    /// To be called between the reset's beginning and its end, when there are other records.
    void forgetRows();
    /// To be called behind a reset: sorts the new records as the old ones were.
    void sortAgain();
    /// To be called between the beginning and the end of an insertion at the end. The new rows
    /// stay there for a moment: sorting for each of many insertions would take long.
    void recordsAppended();
    /// The same for one record that was inserted with this number: the numbers from it on have
    /// grown by one. Where the rows are sorted its row is the last one, else the one of its number.
    void recordInserted(int record);
    bool isSorted() const { return !m_rows.empty(); }

private:
    void startSorting();
    void endSorting();
    void arrange(std::vector<int> rows);

    std::vector<int> m_rows; ///< the number of each row's record; empty: as they came
    int m_column = -1;       ///< that the rows are sorted by; -1: none
    Qt::SortOrder m_order = Qt::AscendingOrder;
    std::unique_ptr<RowSortingJob> m_job;
    JobRunner m_runner;
    QTimer m_soon;
};
