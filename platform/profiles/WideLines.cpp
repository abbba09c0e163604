#include "platform/profiles/WideLines.h"

#include <algorithm>

namespace {

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

bool isLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

// The character that "%41" or "%U0041" stands for at the beginning of `text`; `length` is that of
// the escape, 1 where there is none.
QChar unescaped(const QByteArray& text, int& length)
{
    const int digitsAt = text.mid(1, 1) == "U" ? 2 : 1;
    const int digits = digitsAt == 2 ? 4 : 2;
    bool ok = false;
    const uint code =
        text.size() >= digitsAt + digits ? text.mid(digitsAt, digits).toUInt(&ok, 16) : 0;
    length = ok ? digitsAt + digits : 1;
    return ok ? QChar(static_cast<ushort>(code)) : QLatin1Char('%');
}

// Names are bytes: what is not ASCII has to be written as an escape. A backslash stands for "/".
QString unescapedName(const QByteArray& name)
{
    QString text;
    for (int i = 0; i < name.size();) {
        int length = 1;
        if (name.at(i) == '\\')
            text += QLatin1Char('/');
        else if (name.at(i) == '%' && i + 1 < name.size())
            text += unescaped(name.mid(i, 6), length);
        else
            text += QLatin1Char(name.at(i));
        i += length;
    }
    return text;
}

} // namespace

WideLines::WideLines(const QByteArray& bytes) : m_bytes(bytes)
{
    for (int start = 0; start >= 0 && start < bytes.size();) {
        m_starts.push_back(start);
        const int end = bytes.indexOf('\n', start);
        start = end < 0 ? -1 : end + 1;
    }
    m_readings.resize(m_starts.size());
    if (bytes.startsWith("\xef\xbb\xbf"))
        m_position = 3;
    while (next())
        take();
}

// Reads one line; false at the end.
bool WideLines::next()
{
    while (m_position < m_bytes.size() &&
           (isSpace(m_bytes.at(m_position)) || m_bytes.at(m_position) == ';')) {
        if (m_bytes.at(m_position) == ';')
            skipComment();
        else
            ++m_position;
    }
    m_begin = m_position;
    m_equals = -1;
    m_isList = false;
    m_isEscaped = false;
    scan();
    return m_position > m_begin;
}

void WideLines::skipComment()
{
    LineReading& reading = m_readings[lineOf(m_position)];
    if (reading.state == LineState::Blank)
        reading.state = LineState::Comment;
    else
        reading.isCut = true;
    while (m_position < m_bytes.size() && !isLineEnd(m_bytes.at(m_position)))
        ++m_position;
}

void WideLines::scan()
{
    bool quoted = false;
    for (; m_position < m_bytes.size(); ++m_position) {
        const char character = m_bytes.at(m_position);
        if (!quoted && (isLineEnd(character) || character == ';'))
            return;
        if (character == '"')
            quoted = !quoted;
        else if (character == '=' && !quoted && m_equals < 0)
            m_equals = m_position;
        else if (character == ',' && !quoted && m_equals >= 0)
            m_isList = true;
        else if (character == '\\')
            skipEscape();
    }
    m_position = std::min(m_position, m_bytes.size());
}

// Whatever follows a backslash belongs to the line, also a line end, which goes.
void WideLines::skipEscape()
{
    ++m_position;
    const QByteArray pair = m_bytes.mid(m_position, 2);
    if (pair == "\r\n" || pair == "\n\r")
        ++m_position;
    if (m_equals >= 0 && !pair.isEmpty() && !isLineEnd(pair.at(0)))
        m_isEscaped = true;
}

void WideLines::take()
{
    if (m_bytes.at(m_begin) == '[')
        takeHeader();
    else if (m_equals >= 0)
        takeEntry();
    else
        takeOther();
    markContinuations();
}

void WideLines::takeHeader()
{
    const int end = m_bytes.indexOf(']', m_begin);
    const int length = (end < 0 || end >= m_position ? m_position : end) - m_begin - 1;
    const QByteArray name = m_bytes.mid(m_begin + 1, length).trimmed();
    if (name.toLower() == "general")
        m_section.clear();
    else
        m_section =
            name.toLower() == "%general" ? QString::fromLatin1(name.mid(1)) : unescapedName(name);
    m_readings[lineOf(m_begin)].state = LineState::Header;
}

void WideLines::takeEntry()
{
    int end = m_equals;
    while (end > m_begin && (m_bytes.at(end - 1) == ' ' || m_bytes.at(end - 1) == '\t'))
        --end;
    const QString key = unescapedName(m_bytes.mid(m_begin, end - m_begin));
    const QString name = m_section + QLatin1Char('/') + key;
    const std::size_t line = lineOf(m_begin);
    const auto earlier = m_names.find(name);
    if (earlier != m_names.end())
        m_readings[*earlier].state = LineState::ReplacedKey;
    m_names[name] = line;
    m_readings[line] = {LineState::Entry, m_section, key, m_isList, false, m_isEscaped};
}

void WideLines::takeOther()
{
    m_readings[lineOf(m_begin)].state =
        m_bytes.at(m_begin) == '#' ? LineState::Comment : LineState::NoEquals;
}

void WideLines::markContinuations()
{
    const std::size_t last = lineOf(std::max(m_begin, m_position - 1));
    for (std::size_t line = lineOf(m_begin) + 1; line <= last; ++line)
        m_readings[line].state = LineState::Continuation;
}

std::size_t WideLines::lineOf(int position) const
{
    const auto next = std::upper_bound(m_starts.begin(), m_starts.end(), position);
    return static_cast<std::size_t>(next - m_starts.begin()) - 1;
}
