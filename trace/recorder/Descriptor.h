#pragma once

namespace recorder {

/// Moves a descriptor to a high number, so that the program's own files get the numbers that they
/// always had. Returns the new one; -1 for -1.
int outOfTheWay(int descriptor);

} // namespace recorder
