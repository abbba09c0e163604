#include "window/FocusFrame.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

// Below this a thin line is hardly seen beside the other colour.
constexpr double leastContrast = 2.8;

double luminance(const QColor& color)
{
    const auto linear = [](double channel) { return std::pow(channel, 2.2); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [least, most] = std::minmax({luminance(one), luminance(other)});
    return (most + 0.05) / (least + 0.05);
}

QColor middle(const QColor& one, const QColor& other)
{
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

} // namespace

QColor focusColor()
{
    const QPalette palette = QGuiApplication::palette();
    const QColor& marked = palette.color(QPalette::Active, QPalette::Highlight);
    if (contrast(marked, palette.color(QPalette::Active, QPalette::Window)) >= leastContrast)
        return marked;
    return middle(marked, palette.color(QPalette::Active, QPalette::WindowText));
}

// Not the frame of the style: some fill it, with a tint or with the brush that the painter happens
// to have, and some draw none until a key has moved the focus.
void paintFocusFrame(QPainter& painter, const QWidget& widget, const QRect& rect)
{
    const int line = std::max(1, widget.fontMetrics().height() / 12);
    const QRegion frame = QRegion(rect) - QRegion(rect.adjusted(line, line, -line, -line));
    for (const QRect& edge : frame)
        painter.fillRect(edge, focusColor());
}
