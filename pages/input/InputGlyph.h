#pragma once

#include "window/GlyphCanvas.h"

/// A keyboard.
inline void drawInputGlyph(GlyphCanvas& canvas)
{
    canvas.outline({2.5, 6, 19, 12.5}, 2);
    for (qreal x : {6.0, 10.0, 14.0, 18.0}) {
        canvas.dot({x, 9.5}, 1.0);
        canvas.dot({x, 12.3}, 1.0);
    }
    canvas.filled({7, 14.4, 10, 1.9}, 0.9);
}
