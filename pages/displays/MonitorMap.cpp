#include "pages/displays/MonitorMap.h"

#include "inspection/input/PointerPosition.h"
#include "window/AccessibleRole.h"
#include "window/FocusFrame.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// Room around the monitors, as a part of the whole: points beside them can be chosen too.
constexpr double margin = 0.12;
constexpr int captionAlignment = Qt::AlignLeft | Qt::AlignTop;
constexpr int smallStep = 1;
constexpr int normalStep = 20;
constexpr int largeStep = 200;

int stepOf(Qt::KeyboardModifiers modifiers)
{
    if (modifiers & Qt::ShiftModifier)
        return smallStep;
    return modifiers & Qt::ControlModifier ? largeStep : normalStep;
}

QPoint directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left: return {-1, 0};
    case Qt::Key_Right: return {1, 0};
    case Qt::Key_Up: return {0, -1};
    case Qt::Key_Down: return {0, 1};
    default: return {};
    }
}

} // namespace

MonitorMap::MonitorMap(QWidget* parent) : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::Graphic);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Map of the monitors"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setToolTip(tr("Click to choose a point, or move it with the arrow keys: 20 pixels, with Ctrl "
                  "200, with Shift 1. Home takes the pointer's position."));
}

QSize MonitorMap::sizeHint() const
{
    return {fontMetrics().height() * 30, fontMetrics().height() * 13};
}

QSize MonitorMap::minimumSizeHint() const
{
    return {fontMetrics().height() * 14, fontMetrics().height() * 8};
}

void MonitorMap::setMonitors(const std::vector<Monitor>& monitors)
{
    m_monitors = monitors;
    update();
}

void MonitorMap::setPointer(const QPoint& pointer)
{
    if (pointer == m_pointer)
        return;
    m_pointer = pointer;
    update();
}

void MonitorMap::setPoint(const QPoint& point)
{
    m_point = point;
    setAccessibleDescription(pointText(point));
    update();
}

void MonitorMap::setAnswer(HMONITOR answer)
{
    m_answer = answer;
    update();
}

QRectF MonitorMap::shownDesktop() const
{
    QRect all;
    for (const Monitor& monitor : m_monitors)
        all |= monitor.full;
    if (all.isEmpty())
        all = QRect(0, 0, 1, 1);
    const double room = margin * std::max(all.width(), all.height());
    return QRectF(all).adjusted(-room, -room, room, room);
}

double MonitorMap::scale() const
{
    const QRectF shown = shownDesktop();
    return std::min(width() / shown.width(), height() / shown.height());
}

QPointF MonitorMap::toMap(const QPointF& desktop) const
{
    return QRectF(rect()).center() + (desktop - shownDesktop().center()) * scale();
}

QPoint MonitorMap::toDesktop(const QPointF& map) const
{
    const QPointF point = (map - QRectF(rect()).center()) / scale() + shownDesktop().center();
    return {static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y()))};
}

QRectF MonitorMap::mapped(const QRect& rect) const
{
    return {toMap(QRectF(rect).topLeft()), toMap(QRectF(rect).bottomRight())};
}

void MonitorMap::choose(const QPoint& point)
{
    setPoint(point);
    emit pointChosen(point);
}

void MonitorMap::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        choose(toDesktop(event->localPos()));
}

void MonitorMap::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton)
        choose(toDesktop(event->localPos()));
}

void MonitorMap::keyPressEvent(QKeyEvent* event)
{
    const QPoint direction = directionOf(event->key());
    if (event->key() == Qt::Key_Home)
        choose(m_pointer);
    else if (!direction.isNull() && !(event->modifiers() & Qt::AltModifier))
        choose(m_point + direction * stepOf(event->modifiers()));
    else
        QWidget::keyPressEvent(event);
}

void MonitorMap::focusInEvent(QFocusEvent* event)
{
    update();
    QWidget::focusInEvent(event);
}

void MonitorMap::focusOutEvent(QFocusEvent* event)
{
    update();
    QWidget::focusOutEvent(event);
}

void MonitorMap::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Monitor& monitor : m_monitors)
        paintMonitor(painter, monitor);
    for (const Monitor& monitor : m_monitors)
        paintCaption(painter, monitor);
    paintPoint(painter);
    paintPointer(painter);
    if (hasFocus())
        paintFocusFrame(painter, *this, rect());
}

void MonitorMap::paintMonitor(QPainter& painter, const Monitor& monitor) const
{
    const bool isAnswer = monitor.handle == m_answer;
    const double line = fontMetrics().height() / 10.0;
    const QRectF full = mapped(monitor.full);
    painter.fillRect(full, palette().mid());
    // In dark palettes that hardly differs from the base.
    painter.fillRect(full, QBrush(palette().color(QPalette::WindowText), Qt::BDiagPattern));
    painter.fillRect(mapped(monitor.work), palette().base());
    painter.setPen(QPen(palette().color(isAnswer ? QPalette::Highlight : QPalette::WindowText),
                        isAnswer ? 2 * line : line));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(full);
}

// The longest caption that the monitor has room for; the table below tells the rest.
void MonitorMap::paintCaption(QPainter& painter, const Monitor& monitor) const
{
    painter.setPen(palette().color(QPalette::Text));
    const double gap = fontMetrics().height() / 2.0;
    const QRectF room = mapped(monitor.work).adjusted(gap, gap, -gap, -gap);
    const QStringList list = monitorCaptions(m_monitors, monitor);
    for (const QString& caption : list) {
        if (room.contains(painter.boundingRect(room, captionAlignment, caption))) {
            painter.drawText(room, captionAlignment, caption);
            return;
        }
    }
    painter.drawText(mapped(monitor.work), Qt::AlignCenter, list.last());
}

void MonitorMap::paintPointer(QPainter& painter) const
{
    const double radius = fontMetrics().height() / 4.0;
    painter.setPen(QPen(palette().color(QPalette::Base), radius / 3));
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawEllipse(toMap(QPointF(m_pointer) + QPointF(0.5, 0.5)), radius, radius);
}

void MonitorMap::paintPoint(QPainter& painter) const
{
    const double arm = fontMetrics().height() / 2.0;
    const QPointF centre = toMap(QPointF(m_point) + QPointF(0.5, 0.5));
    painter.setPen(QPen(palette().color(QPalette::WindowText), arm / 4));
    painter.drawLine(centre - QPointF(arm, 0), centre + QPointF(arm, 0));
    painter.drawLine(centre - QPointF(0, arm), centre + QPointF(0, arm));
}
