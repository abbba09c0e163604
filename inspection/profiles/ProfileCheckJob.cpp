#include "inspection/profiles/ProfileCheckJob.h"

#include "platform/profiles/LineStateText.h"

#include <algorithm>

namespace {

constexpr int linesAStep = 1024;

} // namespace

ProfileCheckJob::ProfileCheckJob(const QByteArray& bytes, Comments comments)
    : m_lines(bytes), m_comments(comments)
{
}

bool ProfileCheckJob::step()
{
    if (!m_areLinesRead) {
        m_areLinesRead = !m_lines.step();
        return true;
    }
    const int end = std::min(m_lines.count(), m_next + linesAStep);
    for (; m_next < end; ++m_next)
        check(m_next);
    return m_next < m_lines.count();
}

// Where the bytes are no text, both families lose what the line says.
void ProfileCheckJob::check(int line)
{
    check(line, m_lines.wideMark(line), ProfileFamily::Wide);
    check(line, m_lines.narrowMark(line), ProfileFamily::Narrow);
    if (m_lines.form().isUtf8(line))
        return;
    for (const ProfileFamily family : {ProfileFamily::Wide, ProfileFamily::Narrow})
        m_findings.push_back({line + 1, family, tr("The line is not UTF-8.")});
}

void ProfileCheckJob::check(int line, LineMark mark, ProfileFamily family)
{
    if (isTold(mark))
        m_findings.push_back({line + 1, family, longText(readingOf(mark), family)});
}

bool ProfileCheckJob::isTold(LineMark mark) const
{
    if (mark.state == LineState::Comment)
        return m_comments == Comments::Tell;
    return isLost(mark.state) || mark.state == LineState::Unreachable ||
           mark.state == LineState::NotFound || mark.isCut || mark.isList || mark.isEscaped;
}
