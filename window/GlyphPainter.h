#pragma once

#include "window/GlyphIcon.h"

class QPainter;
class QRect;

/// What draws a sign that pages share.
GlyphDrawing glyphDrawing(Glyph glyph);

/// Paints a glyph as large as fits into the middle of `rect`, and leaves the painter's state as it
/// was.
void paintGlyph(QPainter& painter, const QRect& rect, GlyphDrawing drawing,
                const GlyphColors& colors);
