#pragma once

#include <QString>

/// New keys and values whose names the store does not give back as they are typed: see KeptName.
/// Paths are as in RegistryPath.

/// What becomes of a new key of this name, in a sentence; empty where it keeps its name. `name` may
/// have several levels.
QString unkeptKeyText(const QString& parent, const QString& name);

/// What becomes of a new value of this name, in a sentence; empty where it keeps its name.
QString unkeptValueText(const QString& key, const QString& name);
