#pragma once

#include <QString>

class QAbstractItemModel;
class QTableView;

/// A table of the page: as all tables of the window, with lower rows, of which one is chosen.
QTableView* makeProfileTable(QAbstractItemModel* model, const QString& name,
                             const QString& objectName);

/// The row that is chosen, or -1.
int chosenRow(const QTableView& table);

/// Scrolls so far, if there are so many rows.
void scrollRows(QTableView& table, int position);
/// How far a table is scrolled, for scrollRows().
int scrolledRows(const QTableView& table);
