#pragma once

#include <QIcon>

/// The window's own drawings.
enum class Glyph
{
    Registry,
    Profiles,
    Files,
    Fonts,
    Displays,
    Input,
    Crypto,
    Log,
    Key,
    Text,
    Number,
    Binary,
    Warning,
    Error
};

/// An icon that is painted at every size and in the application palette of the moment, so that it
/// is crisp on any screen and follows a change between light and dark.
QIcon glyphIcon(Glyph glyph);
