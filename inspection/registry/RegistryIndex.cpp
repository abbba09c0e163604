#include "inspection/registry/RegistryIndex.h"

#include "inspection/registry/RawStore.h"
#include "inspection/registry/RegistryIndexReader.h"

#include <algorithm>

std::shared_ptr<const RegistryIndex> RegistryIndex::read()
{
    auto index = std::make_shared<RegistryIndex>();
    index->m_entries = RawStore().allEntries();
    return index;
}

RegistryIndex::Children RegistryIndex::children(const QString& path) const
{
    Children found;
    RegistryIndexReader reader(*this, path);
    while (reader.next())
        (reader.isGroup() ? found.groups : found.entries).append(reader.name());
    // With their "/" the groups were in another order.
    std::sort(found.groups.begin(), found.groups.end());
    return found;
}
