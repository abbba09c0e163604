#pragma once

#include "inspection/Job.h"
#include "trace/reading/TraceFile.h"

namespace trace {

/// Reads a recording to its present end.
class TraceReadingJob : public Job
{
public:
    /// The recording is open, and outlives the job.
    explicit TraceReadingJob(TraceFile& file) : m_file(file) {}

    bool step() override { return m_file.readOn(); }
    /// The number of calls.
    QString progress() const override;

private:
    TraceFile& m_file;
};

} // namespace trace
