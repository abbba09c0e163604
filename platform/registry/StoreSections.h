#pragma once

#include <QStringList>

/// The top-level groups that have a section in a file in the store's format, in its order; the
/// empty one holds what stands in none. A store parses a section when something in it is asked for
/// first, and all of them at once when it is listed. One that is missed here is parsed then.
QStringList storeSections(const QString& file);

/// A name in such a group: to ask for it has the section parsed, whether it is there or not.
QString nameInSection(const QString& group);

/// True when a file in the store's format has what QSettings never writes: sections of groups below
/// other groups, or entries with levels in no section. A store lists such groups only when it has
/// parsed those lines, which any reading of a name may make it do.
bool hasHiddenGroups(const QString& file);
