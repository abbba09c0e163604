#pragma once

class QTableView;
class QTabWidget;

/// Puts the pages of the tabs onto the ground of the page itself, in line with what is above and
/// below them. Call it when the tabs are complete.
void arrangeTabs(QTabWidget& tabs);

/// Gives a table the look and the keyboard of every list in the window: whole rows are selected,
/// rows are one line high, Tab leaves the table, and what ColumnFit, ElidedTips and TableTools say.
/// Call it when the table has its model.
void arrangeTable(QTableView& table);
