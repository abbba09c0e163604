#pragma once

#include "window/GlyphCanvas.h"

#include <QPainterPath>

/// A lock.
inline void drawCryptoGlyph(GlyphCanvas& canvas)
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
