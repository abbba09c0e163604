#pragma once

#include "inspection/registry/RegistryCountJob.h"
#include "inspection/registry/ValueRemovalJob.h"

/// What a deletion takes along, in words, for the question that comes before it.
namespace RemovalText {

/// The names of the first values, and the keys that the service deletes along with them.
QString ofValues(const std::vector<ValueRemovalJob::Value>& values);

/// What is below the key, and the value that the service deletes along with it.
QString ofKey(const QString& path, const RegistryCountJob& count);

} // namespace RemovalText
