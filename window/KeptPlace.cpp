#include "window/KeptPlace.h"

#include <QScrollBar>
#include <QTableView>

#include <utility>

KeptPlace::KeptPlace(QTableView& table, KeyOf keyOf)
    : m_table(table), m_keyOf(std::move(keyOf)), m_scrolled(table.verticalScrollBar()->value())
{
    const QModelIndexList rows = table.selectionModel()->selectedRows();
    for (const QModelIndex& row : rows)
        m_selected.insert(m_keyOf(row.row()));
    if (table.currentIndex().isValid())
        m_current = m_keyOf(table.currentIndex().row());
}

void KeptPlace::restore() const
{
    if (!m_selected.isEmpty() || !m_current.isNull())
        select();
    m_table.verticalScrollBar()->setValue(m_scrolled);
}

void KeptPlace::select() const
{
    const QAbstractItemModel& model = *m_table.model();
    QItemSelection selection;
    QModelIndex current;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QString key = m_keyOf(row);
        const QModelIndex index = model.index(row, 0);
        if (!current.isValid() && key == m_current)
            current = index;
        if (m_selected.contains(key))
            selection.select(index, index);
    }
    m_table.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    m_table.selectionModel()->select(selection,
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
}
