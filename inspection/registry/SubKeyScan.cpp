#include "inspection/registry/SubKeyScan.h"

#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

SubKeyScan::SubKeyScan(const RegistryIndex& index, const QString& parent)
    : m_reader(index, parent), m_parent(parent)
{
}

bool SubKeyScan::isKey() const
{
    return m_reader.isGroup() ||
           rawRegistryEntry(RegistryPath::join(m_parent, m_reader.name())).isNull();
}
