#pragma once

#include <QtGlobal>

/// Signals by which users and the system end the program. They are only noted, so that what is
/// being saved is saved whole; whoever works for long asks for them between two steps.
namespace Interruption {

/// To be called once, at start-up.
void note();
/// True once the program is to end.
bool isAsked();
/// Throws a Failure then.
void check();
/// Reads as the system does, from a pipe or a terminal too, but only until the program is to end.
/// Negative then, and where that fails, with the reason in `errno`.
qint64 read(int descriptor, char* data, qint64 size);

} // namespace Interruption
