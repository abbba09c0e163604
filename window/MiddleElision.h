#pragma once

#include <QStyledItemDelegate>

/// Elides what does not fit into a column in the middle: of a path or the name of a file, both ends
/// tell something.
class MiddleElision : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideMiddle;
    }
};
