#pragma once

#include <QByteArray>
#include <QHash>

#include <gelf.h>

/// The table of the names in a library. Remembers whether a name was asked for that it has not got,
/// so that the caller need not ask at every name.
class ElfStrings
{
public:
    ElfStrings() = default;

    /// `table` may be null, and has to outlive this object.
    explicit ElfStrings(const Elf_Data* table);

    /// The name that begins there; empty where there is none.
    QByteArray at(quint64 offset);

    /// True where a name lay outside of the table or had no end in it, or where the names overlap
    /// so much that together they would fill the memory.
    bool isDamaged() const { return m_isDamaged; }

private:
    const char* m_text = nullptr;
    quint64 m_size = 0;
    quint64 m_copied = 0; ///< bytes of all names that were given so far
    bool m_isDamaged = false;
};
