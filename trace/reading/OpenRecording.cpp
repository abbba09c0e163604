#include "trace/reading/OpenRecording.h"

namespace trace {

OpenRecording::OpenRecording(const QString& path)
    : m_file(path), m_analysis(std::make_unique<TraceAnalysis>(m_file))
{
}

ValueText::HandleText OpenRecording::handleText(qint64 call) const
{
    return [this, call](const QString& handle) {
        const QString description = m_analysis->handles().description(handle, call);
        return description.isNull() ? handle : CallText::handle(handle, description);
    };
}

} // namespace trace
