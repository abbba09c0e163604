#include "inspection/registry/RegistryIndexReader.h"

#include <algorithm>

namespace {

using Position = QStringList::const_iterator;

// Everything below a group lies between its name with "/" and its name with the next character.
Position endOfGroup(Position first, Position last, const QString& group)
{
    return std::lower_bound(first, last, group + QChar(u'/' + 1));
}

} // namespace

RegistryIndexReader::RegistryIndexReader(const RegistryIndex& index, const QString& path)
{
    const QString prefix = path.isEmpty() ? path : path + QLatin1Char('/');
    const QStringList& entries = index.entries();
    m_at = std::lower_bound(entries.cbegin(), entries.cend(), prefix);
    m_end = path.isEmpty() ? entries.cend() : endOfGroup(m_at, entries.cend(), path);
    m_prefix = prefix.size();
}

bool RegistryIndexReader::next()
{
    if (m_at == m_end)
        return false;
    const int slash = m_at->indexOf(QLatin1Char('/'), m_prefix);
    m_isGroup = slash >= 0;
    m_name = m_at->mid(m_prefix, m_isGroup ? slash - m_prefix : -1);
    m_at = m_isGroup ? endOfGroup(m_at, m_end, m_at->left(slash)) : m_at + 1;
    return true;
}
