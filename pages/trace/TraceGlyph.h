#pragma once

#include "window/GlyphCanvas.h"

/// A call from one side to the other, and its return.
inline void drawTraceGlyph(GlyphCanvas& canvas)
{
    canvas.filled({2.5, 3, 4, 18}, 1);
    canvas.filled({17.5, 3, 4, 18}, 1);
    canvas.line({7, 8.5}, {16.5, 8.5});
    canvas.line({13.5, 5.5}, {16.5, 8.5});
    canvas.line({13.5, 11.5}, {16.5, 8.5});
    canvas.line({7.5, 16}, {17, 16});
    canvas.line({10.5, 13}, {7.5, 16});
    canvas.line({10.5, 19}, {7.5, 16});
}
