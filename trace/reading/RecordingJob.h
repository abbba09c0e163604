#pragma once

#include "trace/reading/CallWalk.h"
#include "trace/reading/OpenRecording.h"
#include "trace/reading/TraceReadingJob.h"

#include <QCoreApplication>

#include <optional>

namespace trace {

/// Reads a recording on to its present end, and finds what its calls come to.
///
/// A call that has been looked at before and has changed, as one that returned meanwhile, makes
/// what followed from it doubtful: all is looked through once more then, and the former analysis
/// stays until that is done.
class RecordingJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(RecordingJob)

public:
    /// The recording is open, and outlives the job.
    explicit RecordingJob(OpenRecording& recording);

    bool step() override;
    QString progress() const override;

    /// The lowest number of the calls that have come or changed; 0 where none has.
    qint64 changed() const { return m_changed; }

private:
    void beginAnalysis();

    OpenRecording& m_recording;
    TraceReadingJob m_reading;
    qint64 m_changed = 0;
    std::unique_ptr<TraceAnalysis> m_anew;
    std::optional<CallWalk> m_walk; ///< once all has been read
};

} // namespace trace
