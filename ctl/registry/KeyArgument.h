#pragma once

#include <QString>

/// Keys as they are given on the command line: with the name of a root, abbreviated or not, or
/// without one.
namespace KeyArgument {

/// The path of a key that is there; an empty argument is the root. Throws a Failure where there is
/// none.
QString existing(const QString& argument);
/// The path that is meant where no such key need be there.
QString any(const QString& argument);

} // namespace KeyArgument
