#pragma once

#include "inspection/Job.h"
#include "inspection/log/LogReader.h"

/// Reads a log file to its present end.
class LogReadingJob : public Job
{
public:
    /// The reader outlives the job.
    explicit LogReadingJob(LogReader& reader) : m_reader(reader) {}

    bool step() override { return m_reader.readMore(); }
    /// The number of entries.
    QString progress() const override;

private:
    LogReader& m_reader;
};
