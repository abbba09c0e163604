#include "inspection/profiles/ProfileFindJob.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int linesAStep = 1024;

} // namespace

ProfileFindJob::ProfileFindJob(std::shared_ptr<const ProfileDocument> document, const QString& text,
                               int firstLine, const QTextCodec* codec)
    : m_document(std::move(document)), m_text(text), m_first(firstLine), m_codec(codec)
{
}

bool ProfileFindJob::step()
{
    const ProfileLines& lines = m_document->lines();
    const int end = std::min(lines.count(), m_searched + linesAStep);
    for (; m_searched < end; ++m_searched) {
        const int line = (m_first + m_searched) % lines.count();
        if (lines.text(line, m_codec).contains(m_text, Qt::CaseInsensitive)) {
            m_found = line;
            return false;
        }
    }
    return m_searched < lines.count();
}
