#pragma once

#include <QString>

/// Gives the application the style, the palette ("light" or "dark") and the font of the pictures,
/// whatever the desktop's own are.
void applyLook(const QString& palette, const QString& fontFamily);
