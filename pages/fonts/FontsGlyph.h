#pragma once

#include "window/GlyphCanvas.h"

#include <QPainterPath>

/// A large letter and a small one.
inline void drawFontsGlyph(GlyphCanvas& canvas)
{
    canvas.line({3, 20}, {9, 4.5});
    canvas.line({9, 4.5}, {15, 20});
    canvas.line({5.3, 14.5}, {12.7, 14.5});
    QPainterPath small;
    small.addEllipse(QRectF(16, 14, 5, 6));
    canvas.path(small);
    canvas.line({21, 13.5}, {21, 20});
}
