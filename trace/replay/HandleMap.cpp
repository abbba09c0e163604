#include "trace/replay/HandleMap.h"

namespace replay {

using trace::Role;

HandleMap::Key HandleMap::keyOf(Role role, const QString& handle)
{
    const Role kind = role == Role::KeyHandleOut ? Role::KeyHandle : role;
    return {static_cast<int>(kind), handle};
}

HandleMap::Entry HandleMap::find(Role role, const QString& handle) const
{
    return m_entries.value(keyOf(role, handle));
}

void HandleMap::add(Role role, const QString& handle, std::uint64_t word)
{
    m_entries.insert(keyOf(role, handle), {State::Alive, word});
}

void HandleMap::miss(Role role, const QString& handle)
{
    m_entries.insert(keyOf(role, handle), {State::Missing, 0});
}

void HandleMap::end(Role role, const QString& handle)
{
    const auto found = m_entries.find(keyOf(role, handle));
    if (found != m_entries.end())
        *found = {State::Ended, 0};
}

} // namespace replay
