#pragma once

#include <QString>

/// The path that is meant by what was typed or pasted into a field for paths: without quotation
/// marks around it, out of a `file:` address, and with the user's home in the place of a `~` that
/// comes first, quoted or not. Anything else is returned as it is.
QString typedPath(const QString& typed);
