#pragma once

#include <QObject>

class QAbstractItemView;

/// Shows whether a view has the keyboard, which most styles tell of a current row alone: a frame in
/// the colour of selections around the view while it has, also where it is empty, and a grey
/// selection while it has not. Its texts can be read as well then as before.
class ViewFocus : public QObject
{
    Q_OBJECT

public:
    /// The view owns it.
    explicit ViewFocus(QAbstractItemView* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();
    void takeColors(bool hasFocus);
    void arrange();

    QAbstractItemView* m_view;
    QWidget* m_frame;
};
