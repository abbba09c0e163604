#pragma once

#include "inspection/registry/RegistryCountJob.h"
#include "inspection/registry/RegistryValueName.h"

#include <vector>

/// What a deletion takes along, in words, for the question that comes before it.
namespace RemovalText {

/// The names of the first values, and the first of the keys that the service deletes along with
/// them, as a KeysAlongJob has found them; of each kind it says how many more there are.
QString ofValues(const std::vector<RegistryValueName>& values, const QStringList& keysAlong);

/// What is below the key, and the value that the service deletes along with it.
QString ofKey(const QString& path, const RegistryCountJob& count);

} // namespace RemovalText
