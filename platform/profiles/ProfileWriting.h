#pragma once

#include <QString>

#include <vector>

/// An entry to be written: as it is given, untrimmed.
struct ProfileEntry
{
    QString section;
    QString key;
    QString value;
};

/// Writes entries as the families do it: each call reads the file once and writes it once. Throws
/// bad_alloc, with the file as it was, where the memory is too small for that.
namespace ProfileWriting {

/// The name by which the wide family asks QSettings for an entry.
QString wideName(const QString& section, const QString& key);

/// False where the file cannot be read and written.
bool narrow(const QString& file, const std::vector<ProfileEntry>& entries);
/// False where the file is none that QSettings may touch.
bool wide(const wchar_t* file, const std::vector<ProfileEntry>& entries);

} // namespace ProfileWriting
