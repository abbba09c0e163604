#include "trace/reading/TraceAnalysis.h"

namespace trace {

TraceAnalysis::TraceAnalysis(TraceFile& file) : m_statistics(file), m_leaks(file)
{
    m_leaks.setListener([this](const QString& handle, const HandleTable::Entry* made, qint64 call) {
        m_handles.add(handle, made, call);
    });
}

void TraceAnalysis::add(const CallEntry& entry)
{
    m_statistics.add(entry);
    m_leaks.add(entry);
    m_next = entry.number + 1;
}

} // namespace trace
