#pragma once

#include "window/RecordCells.h"
#include "window/SortableTableModel.h"

#include <functional>
#include <iterator>
#include <utility>
#include <vector>

/// One column of a table of records.
template <typename Record>
struct RecordColumn
{
    using Text = std::function<QString(const Record& record)>;
    using Look = std::function<QVariant(const Record& record, int role)>;
    using Key = std::function<SortKey(const Record& record)>;

    // Not an aggregate with default values: GCC 12 cannot compile that with `look` left out.
    RecordColumn(QString columnTitle, Text cellText, Look cellLook = {}, QString headerTip = {})
        : title(std::move(columnTitle)),
          text(std::move(cellText)),
          look(std::move(cellLook)),
          tip(std::move(headerTip))
    {
    }

    /// The same column, sorted by something else than its text.
    RecordColumn sortedBy(Key sortKey) const
    {
        RecordColumn column = *this;
        column.key = std::move(sortKey);
        return column;
    }

    /// The header, translated.
    QString title;
    /// What a cell shows; its tool tip too, unless `look` has another one.
    Text text;
    /// What a cell has for any other role: a colour, a font, a decoration, a tool tip. An invalid
    /// answer stands for nothing of its own. May be empty.
    Look look;
    /// The tool tip of the header. May be empty.
    QString tip;
    /// What a cell is sorted by; empty: its text.
    Key key;
};

/// A table of records, one a row, that is described by its columns: the one model of all flat lists
/// of the window. Records keep the order in which they came, rows that of the column they are
/// sorted by.
template <typename Record>
class RecordsModel : public SortableTableModel
{
public:
    using Column = RecordColumn<Record>;

    explicit RecordsModel(std::vector<Column> columns, QObject* parent = nullptr)
        : SortableTableModel(parent), m_columns(std::move(columns))
    {
    }

    /// All records, in the order in which they came.
    const std::vector<Record>& records() const { return m_records; }
    /// The record that stands in this row.
    const Record& record(int row) const
    {
        return m_records[static_cast<std::size_t>(recordAt(row))];
    }

    /// Replaces all records.
    void setRecords(std::vector<Record> records)
    {
        beginResetModel();
        m_records = std::move(records);
        forgetRows();
        endResetModel();
        sortAgain();
    }

    /// Adds records at the end.
    void append(std::vector<Record> records)
    {
        if (records.empty())
            return;
        const int first = rowCount();
        beginInsertRows({}, first, first + static_cast<int>(records.size()) - 1);
        std::move(records.begin(), records.end(), std::back_inserter(m_records));
        recordsAppended();
        endInsertRows();
    }

    /// Lets `change` alter the record of a row, and tells the views.
    template <typename Change>
    void update(int row, Change change)
    {
        change(m_records[static_cast<std::size_t>(recordAt(row))]);
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_records.size());
    }

    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override
    {
        if (!index.isValid())
            return {};
        return cellData(m_columns[static_cast<std::size_t>(index.column())], record(index.row()),
                        role);
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
            return {};
        return headerCellData(m_columns[static_cast<std::size_t>(section)], role);
    }

protected:
    int recordCount() const override { return static_cast<int>(m_records.size()); }

    SortKey sortKey(int record, int column) const override
    {
        return cellSortKey(m_columns[static_cast<std::size_t>(column)],
                           m_records[static_cast<std::size_t>(record)]);
    }

private:
    std::vector<Column> m_columns;
    std::vector<Record> m_records;
};
