#pragma once

class QTableView;

/// Gives a table the look and the keyboard of every list in the window: whole rows are selected,
/// rows are one line high, Tab leaves the table, and the last column takes the space that is left.
void arrangeTable(QTableView& table);
