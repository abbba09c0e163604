#include "trace/reading/CallSearch.h"

#include <utility>

namespace trace {

CallSearch::CallSearch(OpenRecording& recording, Query query, Receiver receiver, qint64 first)
    : m_recording(recording),
      m_query(std::move(query)),
      m_receiver(std::move(receiver)),
      m_walk(
          recording.file(), [this](const CallEntry& entry) { look(entry); }, first)
{
}

bool CallSearch::step()
{
    const bool isMore = m_walk.step();
    if (!m_found.empty())
        m_receiver(std::exchange(m_found, {}));
    return isMore;
}

void CallSearch::look(const CallEntry& entry)
{
    if (m_query.filter.admits(m_recording.file(), entry) && isFound(entry))
        m_found.push_back(entry.number);
}

bool CallSearch::isFound(const CallEntry& entry)
{
    if (m_query.text.isEmpty())
        return true;
    TraceFile& file = m_recording.file();
    const std::optional<Call> call = file.call(entry);
    return call && m_recording.text(entry.number)
                       .line(*call, file.operation(entry))
                       .contains(m_query.text, Qt::CaseInsensitive);
}

} // namespace trace
