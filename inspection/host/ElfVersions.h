#pragma once

#include "inspection/host/ElfDynamic.h"

/// A version that a library wants of another one.
struct ElfVersionNeed
{
    QByteArray library;  ///< as it is needed, such as "libc.so.6"
    QByteArray version;  ///< such as "GLIBC_2.34"
    bool isWeak = false; ///< true where the dynamic loader does without it
};

/// The version of a symbol.
struct ElfSymbolVersion
{
    QByteArray name;       ///< empty for a symbol without a version
    QByteArray library;    ///< of a symbol that is wanted: the library that is to have it
    bool isHidden = false; ///< true for an older version, which only those get who name it
};

/// The tables of versions of a library.
class ElfVersions
{
public:
    /// The file and the section have to outlive this object.
    ElfVersions(const ElfFile& file, ElfDynamic& dynamic);

    bool isDamaged() const { return m_isDamaged; }

    /// What the library wants of others, in the file's order.
    const QVector<ElfVersionNeed>& needs() const { return m_needs; }

    /// The versions that the library offers.
    const QByteArrayList& offered() const { return m_offered; }

    /// Of a symbol, by its place in the table of symbols.
    ElfSymbolVersion of(quint64 symbol) const;

private:
    void readNeeds(const ElfFile& file, ElfDynamic& dynamic);
    int readNeedsOf(Elf_Data* data, const GElf_Verneed& need, int offset, ElfStrings& strings);
    void readOffers(const ElfFile& file, ElfDynamic& dynamic);
    void readOffer(Elf_Data* data, const GElf_Verdef& offer, int offset, ElfStrings& strings);

    QVector<ElfVersionNeed> m_needs;
    QByteArrayList m_offered;
    QHash<int, ElfSymbolVersion> m_versions; ///< by the number that symbols have
    Elf_Data* m_numbers = nullptr;           ///< a number for each symbol
    bool m_isDamaged = false;
};
