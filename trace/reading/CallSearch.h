#pragma once

#include "trace/reading/CallFilter.h"
#include "trace/reading/CallWalk.h"
#include "trace/reading/OpenRecording.h"

namespace trace {

/// Finds the calls of a recording that a filter admits and that read so.
class CallSearch : public Job
{
public:
    /// What is looked for.
    struct Query
    {
        CallFilter filter;
        QString text; ///< in the line of a call, in any case of letters
    };
    /// Takes the numbers of calls, ascending.
    using Receiver = std::function<void(std::vector<qint64> found)>;

    /// The recording outlives the job, and may be read on meanwhile. Begins with the call of that
    /// number.
    CallSearch(OpenRecording& recording, Query query, Receiver receiver, qint64 first = 1);

    bool step() override;
    /// The number of calls.
    QString progress() const override { return m_walk.progress(); }

private:
    void look(const CallEntry& entry);
    bool isFound(const CallEntry& entry);

    OpenRecording& m_recording;
    Query m_query;
    Receiver m_receiver;
    CallWalk m_walk;
    std::vector<qint64> m_found; ///< in this step
};

} // namespace trace
