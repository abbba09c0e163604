#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// A profile's file as a whole, as undo keeps it and puts it back.
namespace ProfileBytes {

/// What lies in the file; nothing where there is no file, or where it cannot be read.
std::optional<QByteArray> of(const QString& path);

/// Makes the file hold these bytes, in place, so that its permissions and links stay, and under a
/// new time stamp, so that the wide family notices; without bytes the file is removed. False where
/// the file does not lie there as asked for afterwards.
bool restore(const QString& path, const std::optional<QByteArray>& bytes);

} // namespace ProfileBytes
