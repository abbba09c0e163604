#include "trace/replay/ReplaySource.h"

#include "trace/replay/ReplayFolder.h"

namespace replay {

bool ReplaySource::open(const Pause& pause)
{
    m_file = std::make_unique<trace::TraceFile>(m_path);
    if (!m_file->open()) {
        m_error = m_file->error();
        return false;
    }
    while (m_file->readOn())
        pause();
    return true;
}

std::unique_ptr<ReplayFolder> ReplaySource::makeFolder() const
{
    return std::make_unique<ReplayFolder>(m_file->header().textOf("cwd"));
}

} // namespace replay
