#include "trace/reading/RecordingJob.h"

namespace trace {

RecordingJob::RecordingJob(OpenRecording& recording)
    : m_recording(recording), m_reading(recording.file())
{
}

bool RecordingJob::step()
{
    if (!m_walk) {
        if (!m_reading.step())
            beginAnalysis();
        return true;
    }
    if (m_walk->step())
        return true;
    if (m_anew)
        m_recording.setAnalysis(std::move(m_anew));
    return false;
}

void RecordingJob::beginAnalysis()
{
    m_changed = m_recording.file().takeChanged();
    const qint64 next = m_recording.analysis().next();
    if (m_changed > 0 && m_changed < next) {
        m_anew = std::make_unique<TraceAnalysis>(m_recording.file());
        m_walk.emplace(m_recording.file(), [this](const CallEntry& entry) { m_anew->add(entry); });
    } else {
        m_walk.emplace(
            m_recording.file(), [this](const CallEntry& entry) { m_recording.add(entry); }, next);
    }
}

QString RecordingJob::progress() const
{
    return m_walk ? tr("Calls looked through: %1").arg(m_walk->progress())
                  : tr("Calls read: %1").arg(m_reading.progress());
}

} // namespace trace
