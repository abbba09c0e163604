#include "platform/profiles/NarrowScanner.h"

namespace {

constexpr QChar equalsSign = QLatin1Char('=');

} // namespace

bool NarrowScanner::next()
{
    if (m_rest.isEmpty())
        return false;
    const qsizetype end = m_rest.indexOf(QLatin1Char('\n'));
    m_line = end < 0 ? m_rest : m_rest.left(end);
    m_rest = end < 0 ? QStringView() : m_rest.mid(end + 1);
    if (m_line.startsWith(QLatin1Char('['))) {
        m_header = m_line;
        m_kind = Kind::Header;
        return true;
    }
    m_equals = m_line.indexOf(equalsSign);
    m_secondEquals = m_equals < 0 ? -1 : m_line.indexOf(equalsSign, m_equals + 1);
    // A value with a "=" in it is lost. Intended.
    const bool isKept = m_equals >= 0 && m_secondEquals < 0 && !m_header.isEmpty();
    m_kind = isKept ? Kind::Entry : Kind::Dropped;
    return true;
}

LineState NarrowScanner::state() const
{
    switch (m_kind) {
    case Kind::Header: return LineState::Header;
    case Kind::Entry: return entryState();
    default: return droppedState();
    }
}

// The calls put the brackets round the section's name themselves.
LineState NarrowScanner::entryState() const
{
    const bool isReachable = m_header.size() >= 2 && m_header.endsWith(QLatin1Char(']'));
    return isReachable ? LineState::Entry : LineState::Unreachable;
}

// There is no comment syntax: comments are told from other dropped lines only to explain them.
LineState NarrowScanner::droppedState() const
{
    const QStringView text = m_line.trimmed();
    if (text.isEmpty())
        return LineState::Blank;
    if (text.front() == QLatin1Char(';') || text.front() == QLatin1Char('#'))
        return LineState::Comment;
    if (m_equals < 0)
        return LineState::NoEquals;
    return m_secondEquals < 0 ? LineState::BeforeHeader : LineState::TwoEquals;
}
