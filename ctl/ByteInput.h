#pragma once

#include <functional>

class InputDevice;
class QByteArray;
class QString;

/// Files and the standard input, read to their end.
namespace ByteInput {

/// Reads all of a file, in pieces; of the standard input for an empty name and for "-". Throws a
/// Failure where that is not possible.
void read(const QString& name, const std::function<void(const QByteArray& piece)>& take);

/// The same of what is open already; all at once.
QByteArray readAll(InputDevice& device);

} // namespace ByteInput
