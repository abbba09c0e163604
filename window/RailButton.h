#pragma once

#include <QPushButton>

/// A button of the rail: icon and text side by side on a rounded field, highlighted while checked.
class RailButton : public QPushButton
{
    Q_OBJECT

public:
    RailButton(const QIcon& icon, const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int gap() const;
    QPalette::ColorRole textRole() const;
    void paintField(QPainter& painter);
    void paintContent(QPainter& painter);
    void scaleIcon();
};
