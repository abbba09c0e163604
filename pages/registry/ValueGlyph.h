#pragma once

#include "window/GlyphIcon.h"

/// The sign of a value's type.
Glyph valueGlyph(unsigned int type);
