#pragma once

#include "inspection/registry/RegistryIndex.h"

#include <QStringList>

/// The paths that a typed address may mean, the most literal first: a key's name may begin or end
/// with blanks, stand in brackets or quotes, or be what people write for a root or, as Windows
/// shows it, for the computer in front of one. Empty where it begins with no root that is known.
QStringList pathsOfAddress(const QString& address);

/// The key whose path differs from this one in case only; empty where there is none.
QString keyInOtherCase(const RegistryIndex& index, const QString& path);

/// What an address that has been typed half may go on to: the text up to its last separator with
/// each key below that whose name begins with the rest, in any case; the roots where there is no
/// separator yet. At most `most` of them.
QStringList completionsOf(const RegistryIndex& index, const QString& typed, int most);
