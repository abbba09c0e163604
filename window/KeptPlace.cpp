#include "window/KeptPlace.h"

#include <QScrollBar>
#include <QTableView>

#include <utility>

namespace {

// Neighbouring rows are one range: a view looks at every range of a selection for every cell.
void add(QItemSelection& selection, const QModelIndex& row)
{
    if (!selection.isEmpty() && selection.last().bottom() == row.row() - 1)
        selection.last() = QItemSelectionRange(selection.last().topLeft(), row);
    else
        selection.select(row, row);
}

} // namespace

KeptPlace::KeptPlace(QTableView& table, KeyOf keyOf)
    : m_table(table),
      m_keyOf(std::move(keyOf)),
      m_right(table.horizontalScrollBar()->value()),
      m_down(table.verticalScrollBar()->value())
{
    const QModelIndexList rows = table.selectionModel()->selectedRows();
    for (const QModelIndex& row : rows)
        m_selected.insert(m_keyOf(row.row()));
    const QModelIndex current = table.currentIndex();
    if (!current.isValid())
        return;
    m_current = m_keyOf(current.row());
    m_column = current.column();
}

void KeptPlace::restore() const
{
    if (!m_selected.isEmpty() || !m_current.isNull())
        select();
    m_table.doItemsLayout(); // the scroll bars have their new range behind it
    m_table.horizontalScrollBar()->setValue(m_right);
    m_table.verticalScrollBar()->setValue(m_down);
}

void KeptPlace::select() const
{
    const QAbstractItemModel& model = *m_table.model();
    QItemSelection selection;
    QModelIndex current;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QString key = m_keyOf(row);
        if (!current.isValid() && key == m_current)
            current = model.index(row, m_column);
        if (m_selected.contains(key))
            add(selection, model.index(row, 0));
    }
    m_table.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    m_table.selectionModel()->select(selection,
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
}
