#pragma once

#include "window/ShownText.h"
#include "window/SortKey.h"

#include <QVariant>

/// What a cell of a table of records has for a role, as its column describes it: see RecordColumn.
template <typename Column, typename Record>
QVariant cellData(const Column& column, const Record& record, int role)
{
    if (role == Qt::DisplayRole)
        return column.text(record);
    QVariant look = column.look ? column.look(record, role) : QVariant();
    if (role == Qt::ToolTipRole && !look.isValid())
        return plainToolTip(column.text(record));
    return look;
}

/// What a cell is sorted by.
template <typename Column, typename Record>
SortKey cellSortKey(const Column& column, const Record& record)
{
    return column.key ? column.key(record) : SortKey::text(column.text(record));
}

/// What the header of a column has for a role.
template <typename Column>
QVariant headerCellData(const Column& column, int role)
{
    if (role == Qt::ToolTipRole && !column.tip.isEmpty())
        return plainToolTip(column.tip);
    if (role == Qt::AccessibleTextRole) // a sign alone heads some columns, or nothing
        return column.title.isEmpty() ? column.tip : column.title;
    return role == Qt::DisplayRole ? column.title : QVariant();
}
