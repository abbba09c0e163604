#pragma once

#include "window/GlyphCanvas.h"

/// A sheet with a section and its lines.
inline void drawProfilesGlyph(GlyphCanvas& canvas)
{
    canvas.polygon({{5, 3}, {14.5, 3}, {19, 7.5}, {19, 21}, {5, 21}});
    canvas.line({14.5, 3}, {14.5, 7.5});
    canvas.line({14.5, 7.5}, {19, 7.5});
    canvas.filled({7.5, 10, 6, 2.6}, 0.8);
    canvas.line({8, 15}, {16, 15});
    canvas.line({8, 18}, {13, 18});
}
