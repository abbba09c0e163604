#include "platform/profiles/NarrowScanner.h"

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
