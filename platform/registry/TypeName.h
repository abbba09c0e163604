#pragma once

#include <QString>

/// The Windows name of a registry type, such as REG_SZ for 1; the number for a type without a name.
QString registryTypeName(unsigned int type);
