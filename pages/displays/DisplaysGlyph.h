#pragma once

#include "window/GlyphCanvas.h"

/// A monitor on its foot.
inline void drawDisplaysGlyph(GlyphCanvas& canvas)
{
    canvas.filled({5.5, 6.5, 13, 7.5}, 0.5);
    canvas.outline({3, 4, 18, 12.5});
    canvas.line({12, 16.5}, {12, 20});
    canvas.line({8, 20}, {16, 20});
}
