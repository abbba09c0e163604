#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QVector>

class QPainter;
class QPainterPath;

/// The colours of a glyph.
struct GlyphColors
{
    QColor line;
    /// Fills and details.
    QColor accent;
};

/// What a glyph is drawn on: a square of 24 by 24 units, from the left and from the top, with lines
/// 1.6 units wide.
class GlyphCanvas
{
public:
    /// `painter` has the square's units already, and outlives the canvas.
    GlyphCanvas(QPainter& painter, const GlyphColors& colors);

    void outline(const QRectF& rect, qreal radius = 1.5);
    /// In the accent colour, without an outline.
    void filled(const QRectF& rect, qreal radius = 1.5);
    void line(const QPointF& from, const QPointF& to);
    void path(const QPainterPath& path);
    /// The outline of a polygon, from the last corner back to the first.
    void polygon(const QVector<QPointF>& corners);
    /// In the colour of the lines.
    void dot(const QPointF& centre, qreal radius);

    /// The side of the square.
    static constexpr qreal side = 24.0;

private:
    void takePen();
    void takeFill(const QColor& color);

    QPainter& m_painter;
    GlyphColors m_colors;
};

/// Draws a glyph.
using GlyphDrawing = void (*)(GlyphCanvas& canvas);
