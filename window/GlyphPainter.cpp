#include "window/GlyphPainter.h"

#include <QPainter>
#include <QPainterPath>

namespace {

void key(GlyphCanvas& canvas)
{
    canvas.filled({3, 6, 18, 13});
    canvas.polygon({{3, 5}, {9, 5}, {11, 7.5}, {21, 7.5}, {21, 19}, {3, 19}});
}

void text(GlyphCanvas& canvas)
{
    canvas.outline({3, 4, 18, 16});
    canvas.line({8, 8.5}, {16, 8.5});
    canvas.line({12, 8.5}, {12, 16});
}

void number(GlyphCanvas& canvas)
{
    canvas.outline({3, 4, 18, 16});
    QPainterPath zero;
    zero.addEllipse(QRectF(6.5, 8.5, 4.5, 7));
    canvas.path(zero);
    canvas.line({14, 10}, {16, 8.5});
    canvas.line({16, 8.5}, {16, 15.5});
}

void binary(GlyphCanvas& canvas)
{
    canvas.outline({3, 4, 18, 16});
    for (qreal y : {8.5, 12.0, 15.5}) {
        canvas.line({7, y}, {9.5, y});
        canvas.line({12, y}, {17, y});
    }
}

// An arrow that comes from the right, turns, and points to the left; mirrored for the way forward.
void turningArrow(GlyphCanvas& canvas, bool forward)
{
    const auto x = [forward](qreal fromBack) {
        return forward ? GlyphCanvas::side - fromBack : fromBack;
    };
    QPainterPath arrow({x(4), 9});
    arrow.lineTo(x(14), 9);
    arrow.cubicTo({x(22), 9}, {x(22), 19.5}, {x(14), 19.5});
    arrow.lineTo(x(8), 19.5);
    canvas.path(arrow);
    canvas.line({x(9), 4}, {x(4), 9});
    canvas.line({x(4), 9}, {x(9), 14});
}

void undo(GlyphCanvas& canvas)
{
    turningArrow(canvas, false);
}

void redo(GlyphCanvas& canvas)
{
    turningArrow(canvas, true);
}

void reread(GlyphCanvas& canvas)
{
    QPainterPath turn;
    turn.arcMoveTo(QRectF(4, 4, 16, 16), 20);
    turn.arcTo(QRectF(4, 4, 16, 16), 20, 310);
    canvas.path(turn);
    canvas.line({20, 4}, {19.5, 9.5});
    canvas.line({19.5, 9.5}, {14, 9});
}

void warning(GlyphCanvas& canvas)
{
    canvas.polygon({{12, 3.5}, {21.5, 20}, {2.5, 20}});
    canvas.line({12, 10}, {12, 14.5});
    canvas.dot({12, 17.3}, 1.1);
}

void error(GlyphCanvas& canvas)
{
    canvas.polygon({{8, 3}, {16, 3}, {21, 8}, {21, 16}, {16, 21}, {8, 21}, {3, 16}, {3, 8}});
    canvas.line({8.8, 8.8}, {15.2, 15.2});
    canvas.line({15.2, 8.8}, {8.8, 15.2});
}

} // namespace

GlyphDrawing glyphDrawing(Glyph glyph)
{
    switch (glyph) {
    case Glyph::Key: return &key;
    case Glyph::Text: return &text;
    case Glyph::Number: return &number;
    case Glyph::Binary: return &binary;
    case Glyph::Undo: return &undo;
    case Glyph::Redo: return &redo;
    case Glyph::Reread: return &reread;
    case Glyph::Warning: return &warning;
    case Glyph::Error: return &error;
    }
    return &error;
}

void paintGlyph(QPainter& painter, const QRect& rect, GlyphDrawing drawing,
                const GlyphColors& colors)
{
    const qreal extent = qMin(rect.width(), rect.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect).center() - QPointF(extent, extent) / 2);
    painter.scale(extent / GlyphCanvas::side, extent / GlyphCanvas::side);
    GlyphCanvas canvas(painter, colors);
    drawing(canvas);
    painter.restore();
}
