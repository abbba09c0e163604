#pragma once

#include "inspection/host/HostReport.h"

/// The symbols that the checked library and those that it brings in want, and that nothing
/// supplies; and those of the application where the checked library takes the place of one of its
/// own.
QVector<HostMissingSymbol> missingSymbols(const LoadScope& scope);
