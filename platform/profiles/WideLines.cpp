#include "platform/profiles/WideLines.h"

#include "platform/profiles/IniName.h"

#include <algorithm>

namespace {

constexpr char byteOrderMark[] = "\xef\xbb\xbf";

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

bool isLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

bool isSpace(char character)
{
    return isBlank(character) || isLineEnd(character);
}

// QSettings drops the slashes that are too many from a name that it is asked for, but keeps names
// as they are in the file.
bool isAskable(const QString& name)
{
    constexpr QChar slash = QLatin1Char('/');
    return !name.startsWith(slash) && !name.endsWith(slash) && !name.contains(QLatin1String("//"));
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
    if (bytes.startsWith(byteOrderMark))
        skipMark();
    while (next())
        readLine();
}

// A byte order mark becomes part of a key that follows it. Intended: so it does in QSettings.
void WideLines::skipMark()
{
    m_position = static_cast<int>(sizeof byteOrderMark) - 1;
    m_marked = m_position;
    while (m_marked < m_bytes.size() && isBlank(m_bytes.at(m_marked)))
        ++m_marked;
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
    const bool joinsLines = m_position + 1 < m_bytes.size() && isLineEnd(pair.at(0));
    if (m_equals >= 0 && !joinsLines)
        m_isEscaped = true;
}

void WideLines::readLine()
{
    if (m_bytes.at(m_begin) == '[')
        readHeader();
    else if (m_equals >= 0)
        readEntry();
    else
        readOther();
    markContinuations();
}

void WideLines::readHeader()
{
    m_prefix = IniName::sectionPrefix(m_bytes.mid(m_begin, m_position - m_begin));
    m_readings[lineOf(m_begin)].state = LineState::Header;
}

void WideLines::readEntry()
{
    const QString key = IniName::unescaped(keyBytes());
    const QString name = m_prefix + key;
    LineReading reading;
    reading.state = isAskable(name) ? LineState::Entry : LineState::NotFound;
    if (isReplaced(name))
        reading.state = LineState::ReplacedKey;
    reading.section = m_prefix.chopped(m_prefix.isEmpty() ? 0 : 1);
    reading.key = key;
    reading.isList = m_isList;
    reading.isEscaped = m_isEscaped;
    m_readings[lineOf(m_begin)] = reading;
}

// Of several entries of one name the last one counts. With a slash in a key they may stand in
// different sections, which QSettings reads in the order of their names: the longer one counts.
bool WideLines::isReplaced(const QString& name)
{
    const auto earlier = m_names.find(name);
    if (earlier != m_names.end()) {
        if (earlier->prefixSize > m_prefix.size())
            return true;
        m_readings[earlier->line].state = LineState::ReplacedKey;
    }
    m_names[name] = {lineOf(m_begin), m_prefix.size()};
    return false;
}

void WideLines::readOther()
{
    m_readings[lineOf(m_begin)].state =
        m_bytes.at(m_begin) == '#' ? LineState::Comment : LineState::NoEquals;
}

void WideLines::markContinuations()
{
    const std::size_t last = lineOf(m_position);
    for (std::size_t line = lineOf(m_begin) + 1; line <= last; ++line)
        m_readings[line].state = LineState::Continuation;
}

std::size_t WideLines::lineOf(int position) const
{
    const auto next = std::upper_bound(m_starts.begin(), m_starts.end(), position);
    return static_cast<std::size_t>(next - m_starts.begin()) - 1;
}

QByteArray WideLines::keyBytes() const
{
    const int begin = m_begin == m_marked ? 0 : m_begin;
    int end = m_equals;
    while (end > begin && isBlank(m_bytes.at(end - 1)))
        --end;
    return m_bytes.mid(begin, end - begin);
}
