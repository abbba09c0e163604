#include "window/FocusFrame.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>

// Not the frame of the style: some fill it, with a tint or with the brush that the painter happens
// to have, and some draw none until a key has moved the focus.
void paintFocusFrame(QPainter& painter, const QWidget& widget, const QRect& rect)
{
    const int line = std::max(1, widget.fontMetrics().height() / 12);
    const QRegion frame = QRegion(rect) - QRegion(rect.adjusted(line, line, -line, -line));
    for (const QRect& edge : frame)
        painter.fillRect(edge, widget.palette().color(QPalette::Highlight));
}
