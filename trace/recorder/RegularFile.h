#pragma once

#include <cstdint>

namespace recorder {

/// Whether the entry `name` that a search for `pattern` has found is a regular file; both are
/// addresses of wide texts, the name in its record. Only of such a one are size and times told.
bool isRegularFile(std::uint64_t pattern, std::uint64_t name);

} // namespace recorder
