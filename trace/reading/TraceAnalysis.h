#pragma once

#include "trace/reading/HandleHistory.h"
#include "trace/reading/Leaks.h"
#include "trace/reading/Statistics.h"

namespace trace {

/// What the calls of a recording come to.
class TraceAnalysis
{
public:
    /// The recording outlives this.
    explicit TraceAnalysis(TraceFile& file);

    TraceAnalysis(const TraceAnalysis&) = delete;
    TraceAnalysis& operator=(const TraceAnalysis&) = delete;

    /// Takes over a call; all calls come in the order of entry.
    void add(const CallEntry& entry);
    /// The lowest number that a further call may have.
    qint64 next() const { return m_next; }

    const Statistics& statistics() const { return m_statistics; }
    const Leaks& leaks() const { return m_leaks; }
    const HandleHistory& handles() const { return m_handles; }

private:
    Statistics m_statistics;
    Leaks m_leaks;
    HandleHistory m_handles;
    qint64 m_next = 1;
};

} // namespace trace
