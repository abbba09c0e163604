#pragma once

#include <QString>

/// Names with a "\" in them, as a value set directly under a root leaves them: the service takes
/// the "\" for a separator when it is asked for one, and finds another key or value. Paths are as
/// in RegistryPath.

/// True when the service finds another key or value for this path.
bool isRedirected(const QString& path);

/// The key or value that the service finds for this path; most often the same.
QString redirectedPath(const QString& path);

/// Which key a host library gets for this one, in words.
QString redirectedKeyText(const QString& path);

/// Which value a host library gets for this one, in words.
QString redirectedValueText(const QString& path);
