#pragma once

#include "inspection/profiles/ProfileWriter.h"

#include <QByteArray>

/// Deletes a key or a section from a profile's file by taking its lines out of the bytes.
///
/// Neither family of calls can delete: a null value is written as an empty one, and a call without
/// a key is refused. So this goes past them; they only tell which lines it is.
namespace ProfileLineRemoval {

/// The file's bytes without the lines that the change's family reads as its key, or from the
/// section's header to the next header. The other lines, and a byte order mark, stay as they are.
QByteArray bytesWithout(const QString& path, const ProfileChange& change);

/// Replaces the file's contents; false where there is nothing to be deleted, or that fails.
bool apply(const QString& path, const ProfileChange& change);

} // namespace ProfileLineRemoval
