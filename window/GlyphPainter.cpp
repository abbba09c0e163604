#include "window/GlyphPainter.h"

#include <QPainter>
#include <QPainterPath>

namespace {

// Glyphs are drawn on a square of this many units, with lines of this width.
constexpr qreal side = 24.0;
constexpr qreal lineWidth = 1.6;

class Canvas
{
public:
    Canvas(QPainter& painter, const GlyphColors& colors) : m_painter(painter), m_colors(colors) {}

    void outline(const QRectF& rect, qreal radius = 1.5)
    {
        pen();
        m_painter.drawRoundedRect(rect, radius, radius);
    }
    void filled(const QRectF& rect, qreal radius = 1.5)
    {
        fill();
        m_painter.drawRoundedRect(rect, radius, radius);
    }
    void line(QPointF from, QPointF to)
    {
        pen();
        m_painter.drawLine(from, to);
    }
    void path(const QPainterPath& path)
    {
        pen();
        m_painter.drawPath(path);
    }
    void polygon(const QVector<QPointF>& corners)
    {
        pen();
        m_painter.drawPolygon(QPolygonF(corners));
    }
    void dot(QPointF centre, qreal radius)
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_colors.line);
        m_painter.drawEllipse(centre, radius, radius);
    }

private:
    void pen()
    {
        m_painter.setPen(
            QPen(m_colors.line, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.setBrush(Qt::NoBrush);
    }
    void fill()
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_colors.accent);
    }

    QPainter& m_painter;
    GlyphColors m_colors;
};

void registry(Canvas& canvas)
{
    canvas.filled({3, 3, 7, 6});
    canvas.line({6, 9}, {6, 18.5});
    canvas.line({6, 12.5}, {12, 12.5});
    canvas.line({6, 18.5}, {12, 18.5});
    canvas.outline({3, 3, 7, 6});
    canvas.outline({12.5, 10, 8.5, 4.5}, 1);
    canvas.outline({12.5, 16.5, 8.5, 4.5}, 1);
}

void sheet(Canvas& canvas)
{
    canvas.polygon({{5, 3}, {14.5, 3}, {19, 7.5}, {19, 21}, {5, 21}});
    canvas.line({14.5, 3}, {14.5, 7.5});
    canvas.line({14.5, 7.5}, {19, 7.5});
}

void profiles(Canvas& canvas)
{
    sheet(canvas);
    canvas.filled({7.5, 10, 6, 2.6}, 0.8);
    canvas.line({8, 15}, {16, 15});
    canvas.line({8, 18}, {13, 18});
}

void files(Canvas& canvas)
{
    canvas.filled({3, 9, 18, 10.5});
    canvas.polygon({{3, 5}, {9, 5}, {11.5, 7.5}, {21, 7.5}, {21, 19.5}, {3, 19.5}});
}

void fonts(Canvas& canvas)
{
    canvas.line({3, 20}, {9, 4.5});
    canvas.line({9, 4.5}, {15, 20});
    canvas.line({5.3, 14.5}, {12.7, 14.5});
    QPainterPath small;
    small.addEllipse(QRectF(16, 14, 5, 6));
    canvas.path(small);
    canvas.line({21, 13.5}, {21, 20});
}

void displays(Canvas& canvas)
{
    canvas.filled({5.5, 6.5, 13, 7.5}, 0.5);
    canvas.outline({3, 4, 18, 12.5});
    canvas.line({12, 16.5}, {12, 20});
    canvas.line({8, 20}, {16, 20});
}

void input(Canvas& canvas)
{
    canvas.outline({2.5, 6, 19, 12.5}, 2);
    for (qreal x : {6.0, 10.0, 14.0, 18.0}) {
        canvas.dot({x, 9.5}, 1.0);
        canvas.dot({x, 12.3}, 1.0);
    }
    canvas.filled({7, 14.4, 10, 1.9}, 0.9);
}

void crypto(Canvas& canvas)
{
    QPainterPath shackle;
    shackle.moveTo(8, 10.5);
    shackle.lineTo(8, 7.5);
    shackle.arcTo(QRectF(8, 3.5, 8, 8), 180, -180);
    shackle.lineTo(16, 10.5);
    canvas.path(shackle);
    canvas.filled({5, 10.5, 14, 10});
    canvas.outline({5, 10.5, 14, 10});
    canvas.dot({12, 15.5}, 1.5);
}

void log(Canvas& canvas)
{
    for (qreal y : {6.0, 12.0, 18.0}) {
        canvas.filled({3.2, y - 1.6, 3.2, 3.2}, 1.6);
        canvas.line({10, y}, {20.5, y});
    }
}

void key(Canvas& canvas)
{
    canvas.filled({3, 6, 18, 13});
    canvas.polygon({{3, 5}, {9, 5}, {11, 7.5}, {21, 7.5}, {21, 19}, {3, 19}});
}

void text(Canvas& canvas)
{
    canvas.outline({3, 4, 18, 16});
    canvas.line({8, 8.5}, {16, 8.5});
    canvas.line({12, 8.5}, {12, 16});
}

void number(Canvas& canvas)
{
    canvas.outline({3, 4, 18, 16});
    QPainterPath zero;
    zero.addEllipse(QRectF(6.5, 8.5, 4.5, 7));
    canvas.path(zero);
    canvas.line({14, 10}, {16, 8.5});
    canvas.line({16, 8.5}, {16, 15.5});
}

void binary(Canvas& canvas)
{
    canvas.outline({3, 4, 18, 16});
    for (qreal y : {8.5, 12.0, 15.5}) {
        canvas.line({7, y}, {9.5, y});
        canvas.line({12, y}, {17, y});
    }
}

void warning(Canvas& canvas)
{
    canvas.polygon({{12, 3.5}, {21.5, 20}, {2.5, 20}});
    canvas.line({12, 10}, {12, 14.5});
    canvas.dot({12, 17.3}, 1.1);
}

void error(Canvas& canvas)
{
    canvas.polygon({{8, 3}, {16, 3}, {21, 8}, {21, 16}, {16, 21}, {8, 21}, {3, 16}, {3, 8}});
    canvas.line({8.8, 8.8}, {15.2, 15.2});
    canvas.line({15.2, 8.8}, {8.8, 15.2});
}

void draw(Canvas& canvas, Glyph glyph)
{
    switch (glyph) {
    case Glyph::Registry: return registry(canvas);
    case Glyph::Profiles: return profiles(canvas);
    case Glyph::Files: return files(canvas);
    case Glyph::Fonts: return fonts(canvas);
    case Glyph::Displays: return displays(canvas);
    case Glyph::Input: return input(canvas);
    case Glyph::Crypto: return crypto(canvas);
    case Glyph::Log: return log(canvas);
    case Glyph::Key: return key(canvas);
    case Glyph::Text: return text(canvas);
    case Glyph::Number: return number(canvas);
    case Glyph::Binary: return binary(canvas);
    case Glyph::Warning: return warning(canvas);
    case Glyph::Error: return error(canvas);
    }
}

} // namespace

void paintGlyph(QPainter& painter, const QRect& rect, Glyph glyph, const GlyphColors& colors)
{
    const qreal extent = qMin(rect.width(), rect.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect).center() - QPointF(extent, extent) / 2);
    painter.scale(extent / side, extent / side);
    Canvas canvas(painter, colors);
    draw(canvas, glyph);
    painter.restore();
}
