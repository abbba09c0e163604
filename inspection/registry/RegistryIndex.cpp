#include "inspection/registry/RegistryIndex.h"

#include "inspection/registry/RawStore.h"

#include <algorithm>

namespace {

using Position = QStringList::const_iterator;

// Everything below a group lies between its name with "/" and its name with the next character.
Position endOfGroup(Position first, Position last, const QString& group)
{
    return std::lower_bound(first, last, group + QChar(u'/' + 1));
}

} // namespace

std::shared_ptr<const RegistryIndex> RegistryIndex::read()
{
    auto index = std::make_shared<RegistryIndex>();
    index->m_entries = RawStore().allEntries();
    return index;
}

RegistryIndex::Children RegistryIndex::children(const QString& path) const
{
    Children found;
    const QString prefix = path.isEmpty() ? path : path + QLatin1Char('/');
    Position at = std::lower_bound(m_entries.cbegin(), m_entries.cend(), prefix);
    const Position end = path.isEmpty() ? m_entries.cend() : endOfGroup(at, m_entries.cend(), path);
    while (at != end) {
        const int slash = at->indexOf(QLatin1Char('/'), prefix.size());
        if (slash < 0) {
            found.entries.append(at->mid(prefix.size()));
            ++at;
            continue;
        }
        const QString group = at->left(slash);
        found.groups.append(group.mid(prefix.size()));
        at = endOfGroup(at, end, group);
    }
    // With their "/" the groups were in another order.
    std::sort(found.groups.begin(), found.groups.end());
    return found;
}
