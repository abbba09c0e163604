#pragma once

#include "inspection/displays/MonitorList.h"

#include <QWidget>

/// The monitors drawn to scale, with their work areas, the pointer, and a point to be chosen with
/// the mouse or the arrow keys.
class MonitorMap : public QWidget
{
    Q_OBJECT

public:
    explicit MonitorMap(QWidget* parent = nullptr);

    void setMonitors(const std::vector<Monitor>& monitors);
    /// In pixels of the virtual desktop, as the point.
    void setPointer(const QPoint& pointer);
    void setPoint(const QPoint& point);
    /// The monitor to be framed as the answer; null frames none.
    void setAnswer(HMONITOR answer);

    QPoint point() const { return m_point; }
    /// From the desktop to the widget, and back.
    QPointF toMap(const QPointF& desktop) const;
    QPoint toDesktop(const QPointF& map) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void pointChosen(const QPoint& point);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void choose(const QPoint& point);
    QRectF shownDesktop() const;
    double scale() const;
    QRectF mapped(const QRect& rect) const;
    void paintMonitor(QPainter& painter, const Monitor& monitor) const;
    void paintCaption(QPainter& painter, const Monitor& monitor) const;
    void paintPointer(QPainter& painter) const;
    void paintPoint(QPainter& painter) const;

    std::vector<Monitor> m_monitors;
    QPoint m_pointer;
    QPoint m_point;
    HMONITOR m_answer = nullptr;
};
