#pragma once

#include "trace/Operations.h"

#include <vector>

namespace recorder {

/// A virtual table of the services in the program itself.
struct ProgramTable
{
    trace::Interface interface;
    void** slots;
};

/// The tables of the services object's class and the managers' classes in the program's own file.
/// They are found by the names of their types, which are there even where no symbol is: so the
/// managers are known without being asked for, which would create them too early. Empty for a
/// program that has no services.
std::vector<ProgramTable> findProgramTables();

} // namespace recorder
