#pragma once

#include "window/GlyphCanvas.h"

/// Lines, each with its level.
inline void drawLogGlyph(GlyphCanvas& canvas)
{
    for (qreal y : {6.0, 12.0, 18.0}) {
        canvas.filled({3.2, y - 1.6, 3.2, 3.2}, 1.6);
        canvas.line({10, y}, {20.5, y});
    }
}
