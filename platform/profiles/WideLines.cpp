#include "platform/profiles/WideLines.h"

#include "platform/profiles/IniName.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr char byteOrderMark[] = "\xef\xbb\xbf";
constexpr int bytesAStep = 65536;
constexpr std::size_t bytesAnEntry = 16; // of a long file that has little else

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

bool hasNames(LineState state)
{
    return state == LineState::Entry || state == LineState::NotFound ||
           state == LineState::ReplacedKey;
}

} // namespace

bool WideLines::step()
{
    if (m_lines.step())
        return true;
    if (!std::exchange(m_isStarted, true))
        start();
    const int stop = m_position + std::min(bytesAStep, m_bytes.size() - m_position);
    while (m_position < stop) {
        if (!m_isScanning)
            begin();
        if (scan(stop))
            readLine();
    }
    return m_position < m_bytes.size();
}

void WideLines::start()
{
    m_marks.resize(m_lines.size());
    const std::size_t likely =
        std::min(m_lines.size(), static_cast<std::size_t>(m_bytes.size()) / bytesAnEntry);
    m_entries.reserve(likely);
    m_names = NameTable(likely);
    if (m_bytes.startsWith(byteOrderMark))
        skipMark();
}

// A byte order mark becomes part of a key that follows it. Intended: so it does in QSettings.
void WideLines::skipMark()
{
    m_position = static_cast<int>(sizeof byteOrderMark) - 1;
    m_marked = m_position;
    while (m_marked < m_bytes.size() && isBlank(m_bytes.at(m_marked)))
        ++m_marked;
}

// A byte of the file, or 0 behind its end.
char WideLines::at(int position) const
{
    return position < m_bytes.size() ? m_bytes.at(position) : '\0';
}

// Goes to where the next line begins.
void WideLines::begin()
{
    while (isSpace(at(m_position)) || at(m_position) == ';') {
        if (at(m_position) == ';')
            skipComment();
        else
            ++m_position;
    }
    m_begin = m_position;
    m_equals = -1;
    m_isList = false;
    m_isEscaped = false;
    m_isQuoted = false;
    m_isScanning = true;
}

void WideLines::skipComment()
{
    LineMark& mark = markAt(m_position);
    if (mark.state == LineState::Blank)
        mark.state = LineState::Comment;
    else
        mark.isCut = true;
    while (m_position < m_bytes.size() && !isLineEnd(m_bytes.at(m_position)))
        ++m_position;
}

// Goes on to the end of the line; false where that lies behind `stop`.
bool WideLines::scan(int stop)
{
    for (; m_position < m_bytes.size(); ++m_position) {
        const char character = m_bytes.at(m_position);
        if (!m_isQuoted && (isLineEnd(character) || character == ';'))
            break;
        if (m_position >= stop)
            return false;
        if (character == '"')
            m_isQuoted = !m_isQuoted;
        else if (character == '=' && !m_isQuoted && m_equals < 0)
            m_equals = m_position;
        else if (character == ',' && !m_isQuoted && m_equals >= 0)
            m_isList = true;
        else if (character == '\\')
            skipEscape();
    }
    m_position = std::min(m_position, m_bytes.size());
    m_isScanning = false;
    return m_position > m_begin;
}

// Whatever follows a backslash belongs to the line, also a line end, which goes.
void WideLines::skipEscape()
{
    const char first = at(++m_position);
    const char second = at(m_position + 1);
    if (isLineEnd(first) && isLineEnd(second) && first != second)
        ++m_position;
    const bool joinsLines = m_position + 1 < m_bytes.size() && isLineEnd(first);
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
    m_headers.push_back({m_begin, m_position});
    markAt(m_begin).state = LineState::Header;
}

void WideLines::readEntry()
{
    const Entry entry{m_begin == m_marked ? 0 : m_begin, m_equals,
                      static_cast<int>(m_headers.size()) - 1};
    const QString name = m_prefix + keyOf(entry);
    LineMark mark(isAskable(name) ? LineState::Entry : LineState::NotFound);
    if (isReplaced(name))
        mark.state = LineState::ReplacedKey;
    mark.isList = m_isList;
    mark.isEscaped = m_isEscaped;
    m_entries.push_back(entry);
    markAt(m_begin) = mark;
}

// Of several entries of one name the last one counts. With a slash in a key they may stand in
// different sections, which QSettings reads in the order of their names: the longer one counts.
// The entry itself is about to be added.
bool WideLines::isReplaced(const QString& name)
{
    std::uint32_t& place = m_names.place(qHash(name), [&](std::uint32_t other) {
        return prefixOf(m_entries[other]) + keyOf(m_entries[other]) == name;
    });
    if (place != NameTable::none) {
        const Entry& earlier = m_entries[place];
        if (prefixOf(earlier).size() > m_prefix.size())
            return true;
        markAt(earlier.begin).state = LineState::ReplacedKey;
    }
    place = static_cast<std::uint32_t>(m_entries.size());
    return false;
}

void WideLines::readOther()
{
    markAt(m_begin).state = m_bytes.at(m_begin) == '#' ? LineState::Comment : LineState::NoEquals;
}

void WideLines::markContinuations()
{
    const std::size_t first = m_lines.lineOf(m_begin);
    const std::size_t last = m_lines.lineOf(m_position);
    for (std::size_t line = first + 1; line <= last; ++line)
        m_marks[line].state = LineState::Continuation;
}

QString WideLines::prefixOf(const Header& header) const
{
    return IniName::sectionPrefix(m_bytes.mid(header.begin, header.end - header.begin));
}

QString WideLines::prefixOf(const Entry& entry) const
{
    return entry.header < 0 ? QString()
                            : prefixOf(m_headers[static_cast<std::size_t>(entry.header)]);
}

std::vector<QString> WideLines::prefixes() const
{
    std::vector<QString> prefixes;
    prefixes.reserve(m_headers.size());
    for (const Header& header : m_headers)
        prefixes.push_back(prefixOf(header));
    return prefixes;
}

QString WideLines::keyOf(const Entry& entry) const
{
    int end = entry.equals;
    while (end > entry.begin && isBlank(m_bytes.at(end - 1)))
        --end;
    return IniName::unescaped(m_bytes.mid(entry.begin, end - entry.begin));
}

// Of several entries in a line the last one counts.
LineReading WideLines::reading(std::size_t line) const
{
    LineReading reading = readingOf(m_marks[line]);
    const auto behind =
        std::lower_bound(m_entries.begin(), m_entries.end(), m_lines.end(line),
                         [](const Entry& entry, int position) { return entry.begin < position; });
    if (!hasNames(reading.state) || behind == m_entries.begin())
        return reading;
    const QString prefix = prefixOf(*std::prev(behind));
    reading.section = prefix.chopped(prefix.isEmpty() ? 0 : 1);
    reading.key = keyOf(*std::prev(behind));
    return reading;
}

std::vector<LineReading> WideLines::readings()
{
    while (step())
        ;
    std::vector<LineReading> readings;
    for (std::size_t line = 0; line < m_lines.size(); ++line)
        readings.push_back(reading(line));
    return readings;
}
