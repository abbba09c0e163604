#pragma once

#include "inspection/registry/RegistryIndex.h"

/// Reads what is right below a key from a RegistryIndex, name by name: a key may have very many.
/// The index outlives it.
class RegistryIndexReader
{
public:
    RegistryIndexReader(const RegistryIndex& index, const QString& path);

    /// Goes on to the next name, in the order of the index; false at the end.
    bool next();
    const QString& name() const { return m_name; }
    /// True for a sub-key that holds something; false for a value, and for the mark of a key that
    /// has been created, of which the same name may come as a group, too.
    bool isGroup() const { return m_isGroup; }

private:
    using Position = QStringList::const_iterator;

    Position m_at;
    Position m_end;
    int m_prefix; ///< characters of the path in front of the names
    QString m_name;
    bool m_isGroup = false;
};
