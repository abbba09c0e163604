#include "inspection/host/ElfDynamic.h"

#include <algorithm>

namespace {

// More entries than any library has; a file that claims more would only take time.
constexpr quint64 mostEntries = 65536;

} // namespace

ElfDynamic::ElfDynamic(const ElfFile& file) : m_fault(ElfFault::NotDynamic)
{
    for (const GElf_Phdr& segment : file.segments()) {
        if (segment.p_type == PT_DYNAMIC) {
            m_fault = read(file, segment);
            return;
        }
    }
}

ElfFault ElfDynamic::read(const ElfFile& file, const GElf_Phdr& section)
{
    Elf_Data* entries = file.dataAt(section.p_vaddr, section.p_filesz, ELF_T_DYN);
    if (!entries)
        return ElfFault::Damaged;
    const quint64 count = std::min<quint64>(entries->d_size / sizeof(Elf64_Dyn), mostEntries);
    for (quint64 i = 0; i < count; ++i) {
        GElf_Dyn entry = {};
        if (!gelf_getdyn(entries, static_cast<int>(i), &entry) || entry.d_tag == DT_NULL)
            break;
        m_values[entry.d_tag] = entry.d_un.d_val;
        if (entry.d_tag == DT_NEEDED)
            m_neededNames.append(entry.d_un.d_val);
    }
    m_strings = ElfStrings(file.dataAt(value(DT_STRTAB), value(DT_STRSZ), ELF_T_BYTE));
    return readNeeded();
}

ElfFault ElfDynamic::readNeeded()
{
    for (const quint64 name : qAsConst(m_neededNames))
        m_needed.append(m_strings.at(name));
    return m_strings.isDamaged() || m_needed.contains(QByteArray()) ? ElfFault::Damaged
                                                                    : ElfFault::None;
}

std::optional<QByteArray> ElfDynamic::text(qint64 tag)
{
    if (!has(tag))
        return std::nullopt;
    return m_strings.at(value(tag));
}
