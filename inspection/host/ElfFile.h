#pragma once

#include "inspection/host/ElfFault.h"
#include "inspection/host/ElfIdentity.h"

#include <QVector>

#include <gelf.h>
#include <memory>

/// An ELF file open for reading, as the dynamic loader looks at it: by its program headers, never
/// by its sections, which a library can do without. Nothing in the file is run or trusted.
class ElfFile
{
public:
    explicit ElfFile(const QString& path);
    ~ElfFile();

    ElfFile(const ElfFile&) = delete;
    ElfFile& operator=(const ElfFile&) = delete;

    ElfFault fault() const { return m_fault; }
    const ElfIdentity& identity() const { return m_identity; }

    /// The size of the file in bytes.
    quint64 size() const { return m_size; }

    /// In the file's order. None where the tables of the file cannot be read here, which are those
    /// of 32-bit and of big-endian files.
    const QVector<GElf_Phdr>& segments() const { return m_segments; }

    /// `size` bytes at an address of the loaded library; null where the file has not got them.
    /// Owned by this object.
    Elf_Data* dataAt(quint64 address, quint64 size, Elf_Type type) const;

    /// From the address to the end of what the file has of that segment.
    Elf_Data* dataFrom(quint64 address, Elf_Type type) const;

private:
    struct Closer
    {
        void operator()(Elf* elf) const { elf_end(elf); }
    };

    ElfFault open(const QString& path);
    ElfFault checkKind();
    ElfFault readHeader();
    ElfFault readSegments();
    quint64 sizeFrom(quint64 address) const;
    quint64 offsetOf(quint64 address) const;

    int m_descriptor = -1;
    std::unique_ptr<Elf, Closer> m_elf;
    quint64 m_size = 0;
    ElfIdentity m_identity;
    QVector<GElf_Phdr> m_segments;
    ElfFault m_fault;
};
