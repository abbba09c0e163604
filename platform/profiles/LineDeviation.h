#pragma once

#include "platform/profiles/LineReading.h"

#include <QByteArray>
#include <QStringList>

class WrittenLine;

/// Tells in sentences where a family reads another name or another value than the line says to
/// somebody who reads it; empty where it does not. What the states and the flags of a reading tell
/// is not told again.
///
/// `section` is the name that the last header above says, in UTF-8. `reading` has the names of an
/// entry.
QStringList lineDeviations(const WrittenLine& line, const QByteArray& section,
                           const LineReading& reading, ProfileFamily family);
