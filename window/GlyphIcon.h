#pragma once

#include "window/GlyphCanvas.h"

#include <QIcon>

/// The signs that pages share. The glyph of a page itself stands beside the page.
enum class Glyph
{
    Key,
    Text,
    Number,
    Binary,
    Undo,
    Redo,
    Reread,
    Warning,
    Error
};

/// An icon that is painted at every size and in the application palette of the moment, so that it
/// is crisp on any screen and follows a change between light and dark.
QIcon glyphIcon(GlyphDrawing drawing);
QIcon glyphIcon(Glyph glyph);
