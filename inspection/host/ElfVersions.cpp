#include "inspection/host/ElfVersions.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int numberMask = 0x7fff;
constexpr int hiddenMark = 0x8000;
constexpr quint64 mostNeeds = 65536; // a number has 15 bits

// The next record of a chain, which ends with 0; -1 where it leads out of what gelf can address.
int following(int offset, quint64 step)
{
    const quint64 next = static_cast<quint64>(offset) + step;
    return next <= std::numeric_limits<int>::max() ? static_cast<int>(next) : -1;
}

} // namespace

ElfVersions::ElfVersions(const ElfFile& file, ElfDynamic& dynamic)
{
    if (dynamic.has(DT_VERSYM))
        m_numbers = file.dataFrom(dynamic.value(DT_VERSYM), ELF_T_HALF);
    readNeeds(file, dynamic);
    readOffers(file, dynamic);
    m_isDamaged = m_isDamaged || (dynamic.has(DT_VERSYM) && !m_numbers);
}

void ElfVersions::readNeeds(const ElfFile& file, ElfDynamic& dynamic)
{
    const quint64 count = std::min(dynamic.value(DT_VERNEEDNUM), mostNeeds);
    Elf_Data* data = count ? file.dataFrom(dynamic.value(DT_VERNEED), ELF_T_VNEED) : nullptr;
    int offset = 0;
    for (quint64 i = 0; i < count; ++i) {
        GElf_Verneed need = {};
        if (!data || offset < 0 || !gelf_getverneed(data, offset, &need)) {
            m_isDamaged = true;
            return;
        }
        m_isDamaged = readNeedsOf(data, need, offset, dynamic.strings()) < 0 || m_isDamaged;
        if (need.vn_next == 0 || m_isDamaged)
            return;
        offset = following(offset, need.vn_next);
    }
}

int ElfVersions::readNeedsOf(Elf_Data* data, const GElf_Verneed& need, int offset,
                             ElfStrings& strings)
{
    const QByteArray library = strings.at(need.vn_file);
    int place = following(offset, need.vn_aux);
    for (int i = 0; i < need.vn_cnt; ++i) {
        GElf_Vernaux wanted = {};
        const bool isTooMuch = static_cast<quint64>(m_needs.size()) >= mostNeeds;
        if (isTooMuch || place < 0 || !gelf_getvernaux(data, place, &wanted))
            return -1;
        const QByteArray version = strings.at(wanted.vna_name);
        m_needs.append({library, version, (wanted.vna_flags & VER_FLG_WEAK) != 0});
        m_versions[wanted.vna_other & numberMask] = {version, library, false};
        if (wanted.vna_next == 0)
            break;
        place = following(place, wanted.vna_next);
    }
    return place;
}

void ElfVersions::readOffers(const ElfFile& file, ElfDynamic& dynamic)
{
    const quint64 count = std::min(dynamic.value(DT_VERDEFNUM), mostNeeds);
    Elf_Data* data = count ? file.dataFrom(dynamic.value(DT_VERDEF), ELF_T_VDEF) : nullptr;
    int offset = 0;
    for (quint64 i = 0; i < count; ++i) {
        GElf_Verdef offer = {};
        if (!data || offset < 0 || !gelf_getverdef(data, offset, &offer)) {
            m_isDamaged = true;
            return;
        }
        // The first one stands for the file itself and is the version of no symbol.
        if ((offer.vd_flags & VER_FLG_BASE) == 0)
            readOffer(data, offer, offset, dynamic.strings());
        if (offer.vd_next == 0)
            return;
        offset = following(offset, offer.vd_next);
    }
}

void ElfVersions::readOffer(Elf_Data* data, const GElf_Verdef& offer, int offset,
                            ElfStrings& strings)
{
    GElf_Verdaux first = {};
    const int place = following(offset, offer.vd_aux);
    if (place < 0 || !gelf_getverdaux(data, place, &first)) {
        m_isDamaged = true;
        return;
    }
    const QByteArray version = strings.at(first.vda_name);
    m_offered.append(version);
    m_versions[offer.vd_ndx & numberMask] = {version, QByteArray(), false};
}

ElfSymbolVersion ElfVersions::of(quint64 symbol) const
{
    GElf_Versym number = 0;
    if (!m_numbers || symbol >= m_numbers->d_size / sizeof(Elf64_Versym) ||
        !gelf_getversym(m_numbers, static_cast<int>(symbol), &number))
        return ElfSymbolVersion();
    ElfSymbolVersion version = m_versions.value(number & numberMask);
    version.isHidden = (number & hiddenMark) != 0;
    return version;
}
