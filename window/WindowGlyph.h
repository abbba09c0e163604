#pragma once

#include "window/GlyphCanvas.h"

#include <QPainterPath>

/// A bollard on a quay above the water, on a ground of its own: where it stands, on a taskbar, may
/// have any colour.
inline void drawWindowGlyph(GlyphCanvas& canvas)
{
    canvas.filled({0.5, 0.5, 23, 23}, 4);
    canvas.outline({8, 4, 8, 3.5});
    canvas.polygon({{9.5, 7.5}, {14.5, 7.5}, {15.5, 13}, {8.5, 13}});
    canvas.line({4, 13}, {20, 13});
    QPainterPath wave({4, 18});
    for (const qreal x : {4.0, 8.0, 12.0, 16.0})
        wave.quadTo(x + 2, x == 4.0 || x == 12.0 ? 15 : 21, x + 4, 18);
    canvas.path(wave);
}
