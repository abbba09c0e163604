#include "trace/reading/Leaks.h"

#include "trace/reading/TraceFile.h"

namespace trace {

std::vector<Leaks::Leak> Leaks::all() const
{
    std::vector<Leak> leaks;
    for (const HandleTable::Entry& handle : m_handles.all()) {
        const int index = m_file.indexOf(handle.maker);
        if (index < 0)
            continue;
        const CallEntry& maker = m_file.calls()[static_cast<std::size_t>(index)];
        leaks.push_back({handle, m_file.name(maker.caller), m_file.name(maker.operation)});
    }
    return leaks;
}

} // namespace trace
