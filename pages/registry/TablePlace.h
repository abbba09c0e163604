#pragma once

#include <QSet>
#include <QString>

class QTableView;

/// What is selected in a table and where it is scrolled to, kept while its rows are read anew. Rows
/// are found again by the text in their first column.
class TablePlace
{
public:
    /// `table` outlives it.
    explicit TablePlace(QTableView& table);

    void restore() const;

private:
    void select() const;

    QTableView& m_table;
    QSet<QString> m_selected;
    QString m_current; ///< null where there is none
    int m_column = 0;
    int m_right;
    int m_down;
};
