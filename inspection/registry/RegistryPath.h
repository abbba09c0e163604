#pragma once

#include <QStringList>

/// Paths of keys, as the store has them: levels separated by "/", empty for the root that all
/// predefined root keys share. Shown to people they begin with a root's name and have backslashes.
namespace RegistryPath {

/// HKEY_CURRENT_USER\Vendor\Product for Vendor/Product.
QString shown(const QString& path);

/// The names of the four roots, that of `shown` first.
QStringList rootNames();

/// A name or a path as the store takes it: "\" separates as "/" does, and no level is empty.
QString slashed(QString text);

/// Reads what `shown` or a registry file writes: the name of any of the four roots, in any case of
/// letters, then levels. A path without a root is taken to be below one. Names may begin and end
/// with blanks: what a user has typed is to be tried without those around it too. False when the
/// first level begins with "HKEY_" and names no root that is known; `path` is then left alone.
bool parse(const QString& text, QString& path);

QString join(const QString& parent, const QString& name);
/// The root for a key right below it, and for the root itself.
QString parent(const QString& path);
/// The last level.
QString name(const QString& path);

} // namespace RegistryPath
