#include "window/SortableTableModel.h"

#include "window/RowSortingJob.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr int soonMilliseconds = 100;

} // namespace

SortableTableModel::SortableTableModel(QObject* parent) : QAbstractTableModel(parent)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(soonMilliseconds);
    connect(&m_soon, &QTimer::timeout, this, &SortableTableModel::startSorting);
    connect(&m_runner, &JobRunner::finished, this, &SortableTableModel::endSorting);
}

SortableTableModel::~SortableTableModel() = default;

void SortableTableModel::sort(int column, Qt::SortOrder order)
{
    m_column = column;
    m_order = order;
    sortAgain();
}

int SortableTableModel::recordAt(int row) const
{
    return m_rows.empty() ? row : m_rows[static_cast<std::size_t>(row)];
}

int SortableTableModel::rowOf(int record) const
{
    if (m_rows.empty())
        return record;
    return static_cast<int>(std::find(m_rows.begin(), m_rows.end(), record) - m_rows.begin());
}

void SortableTableModel::forgetRows()
{
    m_runner.cancel();
    m_soon.stop();
    m_rows.clear();
}

void SortableTableModel::sortAgain()
{
    m_runner.cancel();
    m_soon.stop();
    if (m_column >= 0)
        startSorting();
    else if (!m_rows.empty())
        arrange({});
}

void SortableTableModel::recordsAppended()
{
    for (int record = static_cast<int>(m_rows.size()); !m_rows.empty() && record < recordCount();
         ++record)
        m_rows.push_back(record);
    if (m_column >= 0 && !m_soon.isActive())
        m_soon.start();
}

void SortableTableModel::recordInserted(int record)
{
    m_runner.cancel(); // it sorts numbers that have moved
    for (int& each : m_rows)
        each += each >= record ? 1 : 0;
    if (!m_rows.empty())
        m_rows.push_back(record);
    if (m_column >= 0)
        m_soon.start();
}

void SortableTableModel::startSorting()
{
    m_runner.cancel();
    m_job = std::make_unique<RowSortingJob>(
        recordCount(), [this, column = m_column](int record) { return sortKey(record, column); },
        m_order);
    if (m_runner.start(*m_job))
        endSorting();
}

// Records that have been appended meanwhile are not among those that were sorted.
void SortableTableModel::endSorting()
{
    std::vector<int> rows = m_job->order();
    m_job.reset();
    for (auto record = static_cast<int>(rows.size()); record < recordCount(); ++record)
        rows.push_back(record);
    arrange(std::move(rows));
}

void SortableTableModel::arrange(std::vector<int> rows)
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> records;
    for (const QModelIndex& index : before)
        records.push_back(recordAt(index.row()));
    m_rows = std::move(rows);
    std::vector<int> rowOfRecord(static_cast<std::size_t>(recordCount()));
    for (int row = 0; row < recordCount(); ++row)
        rowOfRecord[static_cast<std::size_t>(recordAt(row))] = row;
    QModelIndexList after;
    for (int i = 0; i < before.size(); ++i) {
        const int record = records[static_cast<std::size_t>(i)];
        after.append(index(rowOfRecord[static_cast<std::size_t>(record)], before[i].column()));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}
