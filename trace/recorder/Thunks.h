#pragma once

#include "trace/Operations.h"

#include <cstddef>

namespace recorder {

/// The function that records the operation in this slot and goes on to the original; null for a
/// destructor.
void* thunkOf(trace::Interface interface, std::size_t slot);

} // namespace recorder
