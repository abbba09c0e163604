#pragma once

#include <cstddef>

/// What the program asks `new[]` for.
namespace ArrayAllocations {

/// How many bytes it has been asked for last.
std::size_t latest();

} // namespace ArrayAllocations
