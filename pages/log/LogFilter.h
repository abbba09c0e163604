#pragma once

#include "pages/log/LogTable.h"

#include <QSortFilterProxyModel>

/// The entries from a level upwards that contain a text. Lines that frame a run have no level and
/// pass while every level does.
class LogFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// The table outlives the filter.
    explicit LogFilter(LogTable& table, QObject* parent = nullptr);

    void setLowest(LogEntry::Level level);
    /// Case does not matter; the empty text lets everything pass.
    void setText(const QString& text);

    /// The entry of a row that has passed.
    const LogEntry& entry(int row) const;

    /// Sorts the table itself, which does that faster.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    LogTable& m_table;
    LogEntry::Level m_lowest = LogEntry::Level::Debug;
    QString m_text;
};
