#include "platform/profiles/NarrowLines.h"

namespace {

constexpr QChar equalsSign = QLatin1Char('=');

bool isComment(const QString& line)
{
    const QString text = line.trimmed();
    return text.startsWith(QLatin1Char(';')) || text.startsWith(QLatin1Char('#'));
}

// The calls put the brackets round the section's name themselves.
bool isReachable(const QString& header)
{
    return header.size() >= 2 && header.endsWith(QLatin1Char(']'));
}

} // namespace

NarrowLines::NarrowLines(const QString& text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    if (lines.last().isEmpty())
        lines.removeLast();
    m_readings.reserve(static_cast<std::size_t>(lines.size()));
    for (const QString& line : qAsConst(lines))
        add(line);
}

void NarrowLines::add(const QString& line)
{
    if (line.startsWith(QLatin1Char('[')))
        addHeader(line);
    else if (!m_header.isNull() && line.count(equalsSign) == 1)
        addEntry(line);
    else
        m_readings.push_back({dropped(line), {}, {}});
}

// The section begins anew: what it held under this header so far is gone.
void NarrowLines::addHeader(const QString& line)
{
    const auto earlier = m_headers.find(line);
    if (earlier != m_headers.end()) {
        std::size_t replaced = *earlier;
        m_readings[replaced].state = LineState::ReplacedHeader;
        while (++replaced < m_readings.size() && m_readings[replaced].state != LineState::Header &&
               m_readings[replaced].state != LineState::ReplacedHeader) {
            LineState& state = m_readings[replaced].state;
            if (state == LineState::Entry || state == LineState::Unreachable)
                state = LineState::ReplacedHeader;
        }
    }
    m_header = line;
    m_headers[line] = m_readings.size();
    m_keys.clear();
    m_readings.push_back({LineState::Header, {}, {}});
}

void NarrowLines::addEntry(const QString& line)
{
    const int split = line.indexOf(equalsSign);
    const QString key = line.left(split).trimmed();
    const auto earlier = m_keys.find(key);
    if (earlier != m_keys.end())
        m_readings[*earlier].state = LineState::ReplacedKey;
    m_keys[key] = m_readings.size();
    if (isReachable(m_header))
        m_readings.push_back({LineState::Entry, m_header.mid(1, m_header.size() - 2), key});
    else
        m_readings.push_back({LineState::Unreachable, {}, {}});
}

// There is no comment syntax: a comment is dropped for its "=", and kept where it has just one.
LineState NarrowLines::dropped(const QString& line) const
{
    if (line.trimmed().isEmpty())
        return LineState::Blank;
    if (isComment(line))
        return LineState::Comment;
    const int equalsSigns = line.count(equalsSign);
    if (equalsSigns == 0)
        return LineState::NoEquals;
    return equalsSigns > 1 ? LineState::TwoEquals : LineState::BeforeHeader;
}
