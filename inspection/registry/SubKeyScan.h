#pragma once

#include "inspection/registry/RegistryIndexReader.h"

/// Looks through the keys below a key for those of certain names, a few names at a time: whether a
/// name is that of a created key has to be asked for one by one. The index outlives it.
class SubKeyScan
{
public:
    /// How many names are looked at in one go.
    static constexpr int names = 250;

    SubKeyScan(const RegistryIndex& index, const QString& parent);

    /// Looks at the next names, and calls `visit(name)` for each key for which `isWanted(name)` is
    /// true. A key may be visited twice. False when there are no more names.
    template <typename IsWanted, typename Visit>
    bool next(const IsWanted& isWanted, const Visit& visit)
    {
        for (int i = 0; i < names; ++i) {
            if (!m_reader.next())
                return false;
            if (isWanted(m_reader.name()) && isKey())
                visit(m_reader.name());
        }
        return true;
    }

private:
    bool isKey() const;

    RegistryIndexReader m_reader;
    QString m_parent;
};
