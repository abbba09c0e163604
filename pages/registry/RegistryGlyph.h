#pragma once

#include "window/GlyphCanvas.h"

/// A tree of keys.
inline void drawRegistryGlyph(GlyphCanvas& canvas)
{
    canvas.filled({3, 3, 7, 6});
    canvas.line({6, 9}, {6, 18.5});
    canvas.line({6, 12.5}, {12, 12.5});
    canvas.line({6, 18.5}, {12, 18.5});
    canvas.outline({3, 3, 7, 6});
    canvas.outline({12.5, 10, 8.5, 4.5}, 1);
    canvas.outline({12.5, 16.5, 8.5, 4.5}, 1);
}
