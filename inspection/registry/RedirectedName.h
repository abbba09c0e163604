#pragma once

#include <QString>

/// Names with a "\" in them, as a value set directly under a root leaves them: the service
/// separates there when it is asked for one, and finds another key or value. Paths are as in
/// RegistryPath.

bool isOpenedElsewhere(const QString& path);

/// The key or value that the service finds for this path; most often the same.
QString openedPath(const QString& path);

/// Which key a host library gets for this one, in words.
QString keyOpenedElsewhere(const QString& path);

/// Which value a host library gets for this one, in words.
QString valueOpenedElsewhere(const QString& path);
