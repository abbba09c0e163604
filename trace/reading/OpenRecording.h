#pragma once

#include "trace/reading/CallText.h"
#include "trace/reading/TraceAnalysis.h"
#include "trace/reading/TraceFile.h"

#include <memory>

namespace trace {

/// A recording and what its calls come to, as far as a `RecordingJob` has read it.
class OpenRecording
{
public:
    explicit OpenRecording(const QString& path);

    TraceFile& file() { return m_file; }
    const TraceFile& file() const { return m_file; }
    const TraceAnalysis& analysis() const { return *m_analysis; }
    void setAnalysis(std::unique_ptr<TraceAnalysis> analysis) { m_analysis = std::move(analysis); }
    /// Goes on with the analysis that is there.
    void add(const CallEntry& entry) { m_analysis->add(entry); }

    /// How handles read in the call with that number.
    ValueText::HandleText handleText(qint64 call) const;
    /// How the call with that number is told.
    CallText text(qint64 call) const { return CallText(handleText(call)); }

private:
    TraceFile m_file;
    std::unique_ptr<TraceAnalysis> m_analysis;
};

} // namespace trace
