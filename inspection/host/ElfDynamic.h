#pragma once

#include "inspection/host/ElfFile.h"
#include "inspection/host/ElfStrings.h"

#include <QByteArrayList>
#include <QHash>

#include <optional>

/// The dynamic section of a library: what its linker left for the dynamic loader.
class ElfDynamic
{
public:
    /// The file has to outlive this object.
    explicit ElfDynamic(const ElfFile& file);

    /// None, NotDynamic or Damaged.
    ElfFault fault() const { return m_fault; }

    /// The names of the needed libraries, in the order in which they are looked for.
    const QByteArrayList& needed() const { return m_needed; }

    bool has(qint64 tag) const { return m_values.contains(tag); }

    /// 0 where the section has no such entry.
    quint64 value(qint64 tag) const { return m_values.value(tag); }

    /// The text that an entry names; none where there is no such entry.
    std::optional<QByteArray> text(qint64 tag);

    /// The table that the names of this section, of versions and of symbols are in.
    ElfStrings& strings() { return m_strings; }

private:
    ElfFault read(const ElfFile& file, const GElf_Phdr& section);
    ElfFault readNeeded();

    QHash<qint64, quint64> m_values;
    QVector<quint64> m_neededNames;
    QByteArrayList m_needed;
    ElfStrings m_strings;
    ElfFault m_fault;
};
