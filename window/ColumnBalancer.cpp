#include "window/ColumnBalancer.h"

#include "window/TableLook.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableView>

#include <algorithm>

ColumnBalancer::ColumnBalancer(QTableView* table, int column, const QString& sample)
    : QObject(table), m_table(table), m_column(column), m_least(sampleWidth(*table, sample))
{
    // The least that the last column is stretched from.
    table->setColumnWidth(table->model()->columnCount() - 1, table->fontMetrics().height() * 4);
    table->viewport()->installEventFilter(this);
    connect(table->horizontalHeader(), &QHeaderView::sectionResized, this, &ColumnBalancer::follow);
}

void ColumnBalancer::follow(int resized)
{
    if (m_sharing || resized == m_table->model()->columnCount() - 1)
        return;
    m_dragged = m_dragged || resized == m_column;
    share();
}

void ColumnBalancer::share()
{
    if (m_dragged)
        return;
    int rest = m_table->viewport()->width();
    for (int column = 0; column < m_table->model()->columnCount() - 1; ++column)
        rest -= column == m_column ? 0 : m_table->columnWidth(column);
    m_sharing = true;
    m_table->setColumnWidth(m_column, std::max(rest / 2, m_least));
    m_sharing = false;
}

bool ColumnBalancer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        share();
    return QObject::eventFilter(watched, event);
}
