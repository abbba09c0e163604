#pragma once

#include "window/GlyphIcon.h"

#include <QColor>

class QPainter;
class QRect;

struct GlyphColors
{
    QColor line;
    /// Fills and details.
    QColor accent;
};

/// Paints a glyph as large as fits into the middle of `rect`.
void paintGlyph(QPainter& painter, const QRect& rect, Glyph glyph, const GlyphColors& colors);
