#include "inspection/host/ElfStrings.h"

#include <algorithm>
#include <cstring>

namespace {

// Linkers let names share their ends, so all names together may be longer than the table; not by
// more than this factor, and these bytes.
constexpr quint64 mostOverlap = 8;
constexpr quint64 alwaysCopied = 1u << 20;
constexpr quint64 longestName = 1u << 20;

} // namespace

ElfStrings::ElfStrings(const Elf_Data* table)
    : m_text(table ? static_cast<const char*>(table->d_buf) : nullptr),
      m_size(table ? table->d_size : 0)
{
}

QByteArray ElfStrings::at(quint64 offset)
{
    if (offset >= m_size || m_copied > mostOverlap * m_size + alwaysCopied) {
        m_isDamaged = true;
        return QByteArray();
    }
    const quint64 most = std::min(m_size - offset, longestName);
    const char* begin = m_text + offset;
    const void* end = std::memchr(begin, '\0', most);
    if (!end) {
        m_isDamaged = true;
        return QByteArray();
    }
    const auto length = static_cast<const char*>(end) - begin;
    m_copied += static_cast<quint64>(length);
    return QByteArray(begin, static_cast<int>(length));
}
