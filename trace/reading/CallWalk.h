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

    /// The recording outlives the job, and is not read on meanwhile.
    CallWalk(TraceFile& file, Receiver receiver);

    bool step() override;
    /// The number of calls.
    QString progress() const override;

private:
    TraceFile& m_file;
    Receiver m_receiver;
    std::size_t m_next = 0;
};

} // namespace trace
