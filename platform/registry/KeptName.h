#pragma once

#include <QString>

/// What becomes of names on their way into the store and back. The store keeps all others as they
/// are.
namespace KeptName {

/// The path of an entry, levels separated by "/", as the store gives it back once it has saved
/// itself and has been opened anew; null where the entry is gone then.
///
/// The file calls the section of what stands in no group "General", so the group of that name, in
/// whatever case of letters, has another section, which is read as "General". An entry without a
/// name that is two levels deep or more is not read at all.
QString afterRestart(const QString& path);

/// True for a name, or a path, of which the registry leaves out the first character: it takes
/// U+FEFF for the mark of a byte order.
bool losesFirst(const QString& name);

} // namespace KeptName
