#pragma once

#include <QObject>
#include <QStringList>

class QTableView;
class QTabWidget;

/// Puts the pages of the tabs onto the ground of the page itself, in line with what is above and
/// below them. Call it when the tabs are complete.
void arrangeTabs(QTabWidget& tabs);

/// Gives a table the look and the keyboard of every list in the window: whole rows are selected,
/// rows are one line high, Tab leaves the table, the last column takes the space that is left, and
/// what TableTools says. Call it when the table has its model.
void arrangeTable(QTableView& table);

/// How wide a column is that shows this text.
int sampleWidth(const QTableView& table, const QString& sample);

/// Makes each column as wide as its sample, in their order; columns beyond them keep their width.
/// Samples say what a column is for where an average character does not: in fonts with Chinese
/// characters it is twice as wide as a Latin letter.
void fitColumns(QTableView& table, const QStringList& samples);

/// Makes each column but the last as wide as what it holds.
void fitColumnsToContents(QTableView& table);

/// Shares what the other columns of a table leave evenly between one column and the last, at every
/// size of the table, until the user drags the edge of that column.
class ColumnBalancer : public QObject
{
    Q_OBJECT

public:
    /// Make it when the other columns have their width; it belongs to the table. The column never
    /// gets too narrow for the sample, and the last one has the title's width where there is room.
    ColumnBalancer(QTableView* table, int column, const QString& sample);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void share();
    void follow(int resized);

    QTableView* m_table;
    int m_column;
    int m_least;
    bool m_sharing = false;
    bool m_dragged = false;
};
