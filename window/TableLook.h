#pragma once

#include <QStringList>

class QTableView;

/// Gives a table the look and the keyboard of every list in the window: whole rows are selected,
/// rows are one line high, Tab leaves the table, and the last column takes the space that is left.
void arrangeTable(QTableView& table);

/// How wide a column is that shows this text.
int sampleWidth(const QTableView& table, const QString& sample);

/// Makes each column as wide as its sample, in their order; columns beyond them keep their width.
/// Samples say what a column is for where an average character does not: in fonts with Chinese
/// characters it is twice as wide as a Latin letter.
void fitColumns(QTableView& table, const QStringList& samples);

/// Makes each column but the last as wide as what it holds.
void fitColumnsToContents(QTableView& table);
