#include "inspection/registry/RegistryWalk.h"

#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

#include <algorithm>

RegistryWalk::RegistryWalk(const QString& path) : m_pending(path) {}

RegistryWalk::Step RegistryWalk::next()
{
    if (!m_index)
        m_index = RegistryIndex::read();
    if (m_at + 1 < m_names.size()) {
        ++m_at;
        ++m_values;
        return Step::Value;
    }
    if (m_pending.isEmpty())
        return Step::End;
    enter();
    return Step::Key;
}

void RegistryWalk::enter()
{
    m_path = m_pending.takeLast();
    m_key.reset();
    m_at = -1;
    const RegistryListing listing = listRegistryKey(*m_index, m_path);
    QStringList below = listing.allKeys();
    std::reverse(below.begin(), below.end());
    for (const QString& name : qAsConst(below))
        m_pending.append(RegistryPath::join(m_path, name));
    m_names.clear();
    if (isRedirected(m_path))
        return;
    std::set_difference(listing.values.cbegin(), listing.values.cend(), listing.marks.cbegin(),
                        listing.marks.cend(), std::back_inserter(m_names));
}

const RegistryKey& RegistryWalk::key()
{
    if (!m_key)
        m_key = std::make_unique<RegistryKey>(m_path);
    return *m_key;
}
