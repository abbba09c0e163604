#pragma once

#include <QString>

namespace trace {

/// Whether a name within a bundle leads to a place in its folder: relative, without "..", "." and
/// empty parts, without backslashes and control characters. A bundle comes from strangers.
bool isSafeEntryName(const QString& name);

} // namespace trace
