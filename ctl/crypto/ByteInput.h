#pragma once

#include <functional>
#include <memory>

class QByteArray;
class QIODevice;
class QString;

/// Files and the standard input as streams of bytes.
namespace ByteInput {

/// Opens a file for reading; the standard input for an empty name and for "-". Throws a Failure
/// where that is not possible.
std::unique_ptr<QIODevice> opened(const QString& name);

/// Reads all of it, in pieces. Throws a Failure where that is not possible.
void read(const QString& name, const std::function<void(const QByteArray& piece)>& take);

} // namespace ByteInput
