#pragma once

#include "inspection/Job.h"
#include "trace/reading/TraceFile.h"

#include <functional>

namespace trace {

/// Goes through all calls of a recording that has been read, in the order of entry.
class CallWalk : public Job
{
public:
    using Receiver = std::function<void(const CallEntry&)>;

    /// The recording outlives the job. Where it is read on meanwhile, calls that come late and
    /// belong before the ones already delivered are left out. Begins with the call of this number.
    CallWalk(TraceFile& file, Receiver receiver, qint64 first = 1);

    bool step() override;
    /// The number of calls.
    QString progress() const override;

private:
    TraceFile& m_file;
    Receiver m_receiver;
    qint64 m_next;      ///< the lowest number that may come
    qint64 m_count = 0; ///< calls delivered
};

} // namespace trace
