#pragma once

#include "trace/Operations.h"

#include <cstddef>
#include <cstdint>

namespace recorder {

/// The virtual tables in which the operations have been replaced by recording ones. The tables
/// themselves are changed, in their places: so the objects, their types and their addresses stay as
/// they are, and it does not matter how or when a caller has come by an object.
namespace tables {

constexpr std::size_t slotLimit = 32;
using Functions = const void* [slotLimit];

/// Replaces the operations in the table of `object`, which implements `interface`. Null, and an
/// object whose table has been seen before, change nothing.
void replaceIn(trace::Interface interface, const void* object);

/// The same for what the accessor in this slot of the services object has returned.
void learn(std::size_t slot, const void* manager);

/// The same for a table that is known by its address alone.
void replace(trace::Interface interface, void** table);

/// What stood in this slot of the table of `object`.
const void* original(trace::Interface interface, const void* object, std::size_t slot);

} // namespace tables

} // namespace recorder
