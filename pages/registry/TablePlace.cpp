#include "pages/registry/TablePlace.h"

#include <QScrollBar>
#include <QTableView>

TablePlace::TablePlace(QTableView& table)
    : m_table(table),
      m_right(table.horizontalScrollBar()->value()),
      m_down(table.verticalScrollBar()->value())
{
    const QModelIndexList rows = table.selectionModel()->selectedRows();
    for (const QModelIndex& row : rows)
        m_selected.insert(row.data().toString());
    const QModelIndex current = table.currentIndex();
    if (!current.isValid())
        return;
    m_current = current.sibling(current.row(), 0).data().toString();
    m_column = current.column();
}

void TablePlace::restore() const
{
    if (!m_selected.isEmpty() || !m_current.isNull())
        select();
    m_table.doItemsLayout();
    m_table.horizontalScrollBar()->setValue(m_right);
    m_table.verticalScrollBar()->setValue(m_down);
}

void TablePlace::select() const
{
    const QAbstractItemModel& model = *m_table.model();
    QItemSelection selection;
    QModelIndex current;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex first = model.index(row, 0);
        const QString name = first.data().toString();
        if (m_selected.contains(name))
            selection.select(first, model.index(row, model.columnCount() - 1));
        if (name == m_current)
            current = model.index(row, m_column);
    }
    m_table.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    m_table.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}
