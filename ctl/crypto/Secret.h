#pragma once

#include <string>

class QString;

/// Texts that nobody else may see: never an argument, which every user of the machine can read.
namespace Secret {

/// The contents of a file, without one line end at the end. Throws a Failure where it cannot be
/// read.
std::string fromFile(const QString& name);
/// The same of an open descriptor.
std::string fromDescriptor(int descriptor);
/// Asks on the terminal, without showing what is typed. Throws a Failure where there is none.
std::string asked(const QString& question);

} // namespace Secret
