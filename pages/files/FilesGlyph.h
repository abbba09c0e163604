#pragma once

#include "window/GlyphCanvas.h"

/// A folder.
inline void drawFilesGlyph(GlyphCanvas& canvas)
{
    canvas.filled({3, 9, 18, 10.5});
    canvas.polygon({{3, 5}, {9, 5}, {11.5, 7.5}, {21, 7.5}, {21, 19.5}, {3, 19.5}});
}
