#pragma once

#include <QScrollArea>

class QVBoxLayout;

/// Holds the widgets of a page: as large as the page, and scrolled where that is smaller than they
/// need. A widget that gets the keyboard comes into view.
class ScrolledBody : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes the layout of the widgets, which has no margins of its own.
    explicit ScrolledBody(QVBoxLayout* layout, QWidget* parent = nullptr);
    ~ScrolledBody() override;

    /// Some lines of text: the rest is scrolled to.
    QSize minimumSizeHint() const override;

private:
    void showFocus(const QWidget* focus);
};
