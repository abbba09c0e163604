#pragma once

#include <QString>

/// Whether the whole of `text` matches
/// `(https?|ftp|file)://[-A-Za-z0-9+&@#/%?=~_|!:,.;]+[-A-Za-z0-9+&@#/%=~_|]`, case-sensitively:
/// what QRegExpValidator says of it, without the microseconds that a QRegExp takes.
bool matchesUrlPattern(const QString& text);
