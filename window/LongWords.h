#pragma once

#include <QString>

/// `text` with the middle of every word left out that is too long for a line of the narrowest page.
/// A label wraps between words only: such a word, as a name that was typed, would be cut off by its
/// edge and take the label's minimum width with it.
QString withoutLongWords(const QString& text);
