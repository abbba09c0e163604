#pragma once

#include <QObject>

class QAbstractItemView;
class QLabel;

/// A sentence in the middle of an item view that has no rows: what would stand there, and how it
/// gets there. Owned by the view.
class EmptyHint : public QObject
{
    Q_OBJECT

public:
    /// The view's model must have been set.
    EmptyHint(QAbstractItemView* view, const QString& text);

    void setText(const QString& text);
    QString text() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();

    QAbstractItemView* m_view;
    QLabel* m_label;
};
