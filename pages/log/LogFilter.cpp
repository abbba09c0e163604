#include "pages/log/LogFilter.h"

LogFilter::LogFilter(LogTable& table, QObject* parent)
    : QSortFilterProxyModel(parent), m_table(table)
{
    setSourceModel(&table);
}

void LogFilter::setLowest(LogEntry::Level level)
{
    m_lowest = level;
    invalidateFilter();
}

void LogFilter::setText(const QString& text)
{
    m_text = text;
    invalidateFilter();
}

const LogEntry& LogFilter::entry(int row) const
{
    return m_table.record(mapToSource(index(row, 0)).row());
}

void LogFilter::sort(int column, Qt::SortOrder order)
{
    m_table.sort(column, order);
}

bool LogFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const
{
    const LogEntry& entry = m_table.record(row);
    if (m_lowest != LogEntry::Level::Debug && entry.level < m_lowest)
        return false;
    return m_text.isEmpty() || entry.line.contains(m_text, Qt::CaseInsensitive);
}
