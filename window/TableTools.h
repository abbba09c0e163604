#pragma once

#include "inspection/JobRunner.h"
#include "window/TableCopyJob.h"

#include <QObject>

#include <memory>

class QKeyEvent;
class QMenu;
class QPoint;
class QTableView;

/// What every table of the window can do. A click on a column's header sorts by it, a second one
/// the other way round, and a third one brings the original order back; that goes for a
/// SortableTableModel and for what filters one. Ctrl+C copies the rows that are selected as a text.
/// A context menu, by the mouse, the menu key or Shift+F10, has all of it, behind the actions that
/// the page has added to the table.
///
/// Where one of the page's actions has Ctrl+C, it keeps that.
class TableTools : public QObject
{
    Q_OBJECT

public:
    /// The table owns it, and has its model already.
    explicit TableTools(QTableView* table);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool takesKey(const QKeyEvent& press);
    void addCopy(QMenu* menu, const QString& text, TableCopyJob::Header header);
    void copy(TableCopyJob::Header header);
    void endCopying();
    bool isCopyTaken() const;
    void sortByNext(int column);
    void sortBy(int column, Qt::SortOrder order);
    bool takesContextMenu() const;
    void showMenu(const QPoint& place);
    QMenu* makeSortMenu(QMenu* menu);
    void addSorting(QMenu* menu, const QString& title, int column);
    QPoint currentPlace() const;

    QTableView* m_table;
    int m_column = -1; ///< that the table is sorted by; -1: none
    Qt::SortOrder m_order = Qt::AscendingOrder;
    std::unique_ptr<TableCopyJob> m_copying;
    JobRunner m_runner;
};
