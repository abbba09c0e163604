#pragma once

#include <QObject>

class QTableView;

/// Shares what the other columns of a table leave evenly between one column and the last, at every
/// size of the table, until the user drags the edge of that column.
class ColumnBalancer : public QObject
{
    Q_OBJECT

public:
    /// Make it when the other columns have their width; it belongs to the table. The column never
    /// gets too narrow for the sample.
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
