#pragma once

#include <QString>

/// True when a file that QSettings has just written in the INI format may be the first part of one
/// of `entries` entries only: QSettings writes a line for each entry, and ends each line.
bool mayBeCut(const QString& file, int entries);
