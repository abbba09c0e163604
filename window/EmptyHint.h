#pragma once

#include <QObject>
#include <QString>

class QAbstractItemView;
class QLabel;

/// A sentence in the middle of a view for as long as it has no rows: what would stand there, and
/// how to get it.
class EmptyHint : public QObject
{
    Q_OBJECT

public:
    /// Make it after the view has got its model. The view owns it.
    EmptyHint(QAbstractItemView* view, const QString& text);

    void setText(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();
    void arrange();

    QAbstractItemView* m_view;
    QLabel* m_label;
};
