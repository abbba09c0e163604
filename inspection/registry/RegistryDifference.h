#pragma once

#include "inspection/registry/RegistryContents.h"

#include <vector>

/// A key or a value about which two contents do not agree.
struct RegistryDifference
{
    enum class Kind
    {
        Added,
        Removed,
        Changed
    };

    Kind kind = Kind::Changed;
    QString key;  ///< path below the keys that are compared
    QString name; ///< of the value; null: the key itself
    QString before;
    QString after; ///< type and data, whole, in words; of an unreadable one the stored text
};

/// All differences in the order of their paths, a key before its values. Values are compared as a
/// host library reads them, and by their stored texts where it reads nothing.
std::vector<RegistryDifference> registryDifferences(const RegistryContents& before,
                                                    const RegistryContents& after);
