#include "inspection/host/ElfSymbols.h"

#include <algorithm>
#include <cstring>

namespace {

// The words of a hash table, which gelf has no call for. Reading beyond the end gives 0.
class Words
{
public:
    explicit Words(const Elf_Data* data)
        : m_bytes(data ? static_cast<const char*>(data->d_buf) : nullptr),
          m_count(data ? data->d_size / sizeof(quint32) : 0)
    {
    }

    quint32 at(quint64 index) const
    {
        quint32 word = 0;
        if (index < m_count)
            std::memcpy(&word, m_bytes + index * sizeof word, sizeof word);
        return word;
    }

    quint64 count() const { return m_count; }

private:
    const char* m_bytes;
    quint64 m_count;
};

// The table has no count of its own: the last symbol is at the end of the chain that begins last.
// The words are: number of buckets, first symbol, words of the filter, its shift, the filter of
// 8-byte words, the buckets, a word for each symbol from the first one on.
quint64 countByGnuHash(const Words& table)
{
    const quint64 buckets = table.at(0);
    const quint64 firstSymbol = table.at(1);
    const quint64 firstBucket = 4 + quint64{2} * table.at(2);
    const quint64 firstChain = firstBucket + buckets;
    quint64 last = 0;
    for (quint64 i = firstBucket; i < std::min(firstChain, table.count()); ++i)
        last = std::max<quint64>(last, table.at(i));
    if (last < firstSymbol)
        return firstSymbol;
    quint64 place = firstChain + (last - firstSymbol);
    while (place < table.count() && (table.at(place) & 1) == 0) // the mark of a chain's end
        ++place;
    return firstSymbol + (place - firstChain) + 1;
}

quint64 symbolCount(const ElfFile& file, const ElfDynamic& dynamic)
{
    if (dynamic.has(DT_HASH))
        return Words(file.dataFrom(dynamic.value(DT_HASH), ELF_T_BYTE)).at(1);
    if (dynamic.has(DT_GNU_HASH))
        return countByGnuHash(Words(file.dataFrom(dynamic.value(DT_GNU_HASH), ELF_T_BYTE)));
    return 0;
}

bool isBound(const GElf_Sym& symbol)
{
    const int binding = GELF_ST_BIND(symbol.st_info);
    return binding == STB_GLOBAL || binding == STB_WEAK || binding == STB_GNU_UNIQUE;
}

bool isOffered(const GElf_Sym& symbol)
{
    const int visibility = GELF_ST_VISIBILITY(symbol.st_other);
    return visibility == STV_DEFAULT || visibility == STV_PROTECTED;
}

void add(const GElf_Sym& symbol, const QByteArray& name, const ElfSymbolVersion& version,
         ElfSymbols& symbols)
{
    if (symbol.st_shndx != SHN_UNDEF) {
        if (isOffered(symbol))
            symbols.exports.insert(name, version);
    } else if (GELF_ST_BIND(symbol.st_info) != STB_WEAK) {
        symbols.imports.append({name, version});
    }
}

} // namespace

ElfSymbols readElfSymbols(const ElfFile& file, ElfDynamic& dynamic, const ElfVersions& versions)
{
    ElfSymbols symbols;
    const quint64 count = symbolCount(file, dynamic);
    Elf_Data* table = file.dataAt(dynamic.value(DT_SYMTAB), count * sizeof(Elf64_Sym), ELF_T_SYM);
    symbols.isDamaged = count > 0 && !table;
    for (quint64 i = 1; table && i < count; ++i) { // the first one is nobody's
        GElf_Sym symbol = {};
        if (!gelf_getsym(table, static_cast<int>(i), &symbol) || !isBound(symbol))
            continue;
        const QByteArray name = dynamic.strings().at(symbol.st_name);
        if (dynamic.strings().isDamaged())
            break;
        add(symbol, name, versions.of(i), symbols);
    }
    symbols.isDamaged = symbols.isDamaged || dynamic.strings().isDamaged();
    return symbols;
}
