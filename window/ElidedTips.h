#pragma once

#include <QObject>

class QModelIndex;
class QPoint;
class QTableView;

/// Lets the tool tips of a table begin with the whole text of a cell or a title that is elided,
/// also where the tool tip of the model says something else.
class ElidedTips : public QObject
{
    Q_OBJECT

public:
    /// The table owns it.
    explicit ElidedTips(QTableView* table);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString tipOfCell(const QPoint& place) const;
    QString tipOfTitle(const QPoint& place) const;

    QTableView* m_table;
};
