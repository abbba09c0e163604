#include "pages/profiles/ProfileTable.h"

#include "window/ViewLook.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

QTableView* makeProfileTable(QAbstractItemModel* model, const QString& name,
                             const QString& objectName)
{
    auto* table = new QTableView;
    table->setObjectName(objectName);
    table->setAccessibleName(name);
    table->setModel(model);
    arrangeTable(*table);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    // The header and two rows: on a small screen two tables share what the fields leave.
    table->setMinimumHeight(table->fontMetrics().height() * 4);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() * 4 / 3);
    return table;
}

int chosenRow(const QTableView& table)
{
    return table.currentIndex().row();
}

void scrollRows(QTableView& table, int position)
{
    table.doItemsLayout(); // the bar knows the number of rows only then
    table.verticalScrollBar()->setValue(position);
}

int scrolledRows(const QTableView& table)
{
    return table.verticalScrollBar()->value();
}
