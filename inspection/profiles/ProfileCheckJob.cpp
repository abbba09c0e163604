#include "inspection/profiles/ProfileCheckJob.h"

#include "platform/profiles/LineDeviation.h"
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
        if (m_areLinesRead)
            m_wideSections = m_lines.wideSections();
        return true;
    }
    const int end = std::min(m_lines.count(), m_next + linesAStep);
    for (; m_next < end; ++m_next)
        check(m_next);
    return m_next < m_lines.count();
}

void ProfileCheckJob::check(int line)
{
    const WrittenLine written(m_lines.utf8(line));
    if (isPlain(line, written))
        return;
    if (written.kind() == WrittenLine::Kind::Header)
        beginSection(line, written);
    else if (written.hasInnerReturn())
        m_isPlain = false; // what follows it may be a header
    check(line, written, ProfileFamily::Wide);
    check(line, written, ProfileFamily::Narrow);
}

void ProfileCheckJob::beginSection(int line, const WrittenLine& header)
{
    m_section = header.name();
    const auto isHeader = [](LineMark mark) { return mark.state == LineState::Header; };
    m_isPlain = m_lines.form().isUtf8() && header.isPlain() &&
                m_section.compare("general", Qt::CaseInsensitive) != 0 &&
                isHeader(m_lines.wideMark(line)) && isHeader(m_lines.narrowMark(line)) &&
                m_lines.utf8(line).startsWith('[' + m_section + ']') &&
                m_wideSections.findAllAtOnce(QString::fromLatin1(m_section));
}

// An entry of which nothing is to be told, as nearly all are: asking both families for the names
// takes many times as long.
bool ProfileCheckJob::isPlain(int line, const WrittenLine& written) const
{
    const auto isEntry = [this](LineMark mark) {
        return mark.state == LineState::Entry && !isTold(mark, {});
    };
    return m_isPlain && written.kind() == WrittenLine::Kind::Entry &&
           isEntry(m_lines.wideMark(line)) && isEntry(m_lines.narrowMark(line)) &&
           written.isPlain();
}

void ProfileCheckJob::check(int line, const WrittenLine& written, ProfileFamily family)
{
    const QStringList texts = reasons(line, written, family);
    if (!texts.isEmpty())
        m_findings.push_back({line + 1, family, texts.join(QLatin1Char(' '))});
}

// Where the bytes are no text, both families lose what the line says.
QStringList ProfileCheckJob::reasons(int line, const WrittenLine& written,
                                     ProfileFamily family) const
{
    const bool isWide = family == ProfileFamily::Wide;
    const bool isSkipped =
        written.kind() == WrittenLine::Kind::Blank ||
        (written.kind() == WrittenLine::Kind::Comment && m_comments == Comments::Skip);
    if (isWide && !m_lines.form().isUtf8())
        return isSkipped ? QStringList() : QStringList(tr("The family reads UTF-8 alone."));
    const LineMark mark = isWide ? m_lines.wideMark(line) : m_lines.narrowMark(line);
    QStringList texts;
    if (isTold(mark, written))
        texts << longText(readingOf(mark), family);
    if (!m_lines.form().isUtf8(line))
        return texts << tr("The line is not UTF-8.");
    const LineReading reading = isWide ? m_lines.wide(line) : m_lines.narrow(line);
    if (isWide && reading.state == LineState::Entry &&
        !m_wideSections.findAtOnce(reading.section, reading.key))
        texts << tr("The family finds it only after a call that reads all sections.");
    return texts << lineDeviations(written, m_section, reading, family);
}

bool ProfileCheckJob::isTold(LineMark mark, const WrittenLine& written) const
{
    if (mark.state == LineState::Comment)
        return m_comments == Comments::Tell;
    if (mark.state == LineState::Continuation)
        return written.kind() != WrittenLine::Kind::Blank;
    return isLost(mark.state) || mark.state == LineState::Unreachable ||
           mark.state == LineState::NotFound || mark.isCut || mark.isList || mark.isEscaped;
}
