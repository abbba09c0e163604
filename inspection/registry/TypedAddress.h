#pragma once

#include <QStringList>

/// The paths that a typed address may mean, the most literal first: a key's name may begin or end
/// with blanks, stand in brackets or quotes, or be what people write for a root or, as Windows
/// shows it, for the computer in front of one. Empty where it begins with no root that is known.
QStringList pathsOfAddress(const QString& address);
