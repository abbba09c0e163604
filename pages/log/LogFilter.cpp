#include "pages/log/LogFilter.h"

#include "pages/log/LogModel.h"

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

bool LogFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    const int level = index.data(LogModel::LevelRole).toInt();
    if (m_lowest != LogEntry::Level::Debug && level < static_cast<int>(m_lowest))
        return false;
    return m_text.isEmpty() ||
           index.data(LogModel::LineRole).toString().contains(m_text, Qt::CaseInsensitive);
}
