#pragma once

#include <QString>

/// What already has the place of a new key or value, in a sentence; empty where nothing has it.
/// Paths are as in RegistryPath.

/// Of a key. A value stands for a key of its name, as the service sees it.
QString takenKeyText(const QString& path);

/// Of a value of this key. An entry that no host library can read takes the place too.
QString takenValueText(const QString& key, const QString& name);
