#pragma once

#include <QObject>

class QAbstractItemView;

/// Opens the context menu of a view at its current item by Shift+F10 and by the menu key.
class MenuKey : public QObject
{
    Q_OBJECT

public:
    /// The view owns it.
    explicit MenuKey(QAbstractItemView* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openMenu();

    QAbstractItemView* m_view;
};
