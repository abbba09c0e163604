#pragma once

#include <QSet>
#include <QString>

#include <functional>

class QTableView;

/// What is selected in a table and where it is scrolled to, while its rows are read anew.
class KeptPlace
{
public:
    /// What a row is found again by.
    using KeyOf = std::function<QString(int row)>;

    /// Remembers the place. The table outlives it.
    KeptPlace(QTableView& table, KeyOf keyOf);

    /// Goes back to it, as far as the rows are still there.
    void restore() const;

private:
    void select() const;

    QTableView& m_table;
    KeyOf m_keyOf;
    QSet<QString> m_selected;
    QString m_current; ///< null: none
    int m_column = 0;  ///< of the current cell
    int m_right;
    int m_down;
};
