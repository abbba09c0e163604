#include "platform/profiles/NarrowLines.h"

namespace {

constexpr int linesAStep = 2048;
constexpr std::size_t charactersAnEntry = 16; // of a long text that has little else

bool isHeader(LineMark mark)
{
    return mark.state == LineState::Header || mark.state == LineState::ReplacedHeader;
}

} // namespace

NarrowLines::NarrowLines(QStringView text)
    : m_text(text),
      m_scanner(text),
      m_keys(static_cast<std::size_t>(text.size()) / charactersAnEntry)
{
}

bool NarrowLines::step()
{
    for (int i = 0; i < linesAStep; ++i) {
        if (!m_scanner.next())
            return false;
        if (m_scanner.isHeader())
            beginSection();
        else if (m_scanner.isEntry())
            addEntry();
        else
            m_marks.emplace_back(m_scanner.state());
    }
    return true;
}

NarrowLines::Place NarrowLines::placeOf(QStringView piece) const
{
    return {static_cast<int>(m_marks.size()), static_cast<int>(piece.data() - m_text.data()),
            static_cast<int>(piece.size())};
}

// The section begins anew: what it held under this header so far is gone.
void NarrowLines::beginSection()
{
    const QStringView header = m_scanner.line();
    const auto earlier = m_latest.find(header);
    if (earlier != m_latest.end())
        replaceSection(*earlier);
    m_latest[header] = m_marks.size();
    m_headers.push_back(placeOf(header));
    m_marks.emplace_back(LineState::Header);
}

void NarrowLines::replaceSection(std::size_t line)
{
    m_marks[line].state = LineState::ReplacedHeader;
    while (++line < m_marks.size() && !isHeader(m_marks[line])) {
        LineMark& mark = m_marks[line];
        if (mark.state == LineState::Entry || mark.state == LineState::Unreachable)
            mark.state = LineState::ReplacedHeader;
    }
}

void NarrowLines::addEntry()
{
    const QStringView key = m_scanner.key();
    const std::size_t header = m_headers.size() - 1;
    std::uint32_t& place =
        m_keys.place(qHash(key, static_cast<uint>(header)), [&](std::uint32_t other) {
            return m_entries[other].header == header && at(m_entries[other].key) == key;
        });
    if (place != NameTable::none)
        m_marks[static_cast<std::size_t>(m_entries[place].key.line)].state = LineState::ReplacedKey;
    place = static_cast<std::uint32_t>(m_entries.size());
    m_entries.push_back({placeOf(key), header});
    m_marks.emplace_back(m_scanner.state());
}

std::vector<int> NarrowLines::headerLines() const
{
    std::vector<int> lines;
    lines.reserve(m_headers.size());
    for (const Place& header : m_headers)
        lines.push_back(header.line);
    return lines;
}

std::vector<LineReading> NarrowLines::readings()
{
    while (step())
        ;
    std::vector<LineReading> readings;
    for (const LineMark mark : m_marks)
        readings.push_back(readingOf(mark));
    for (const Entry& entry : m_entries) {
        LineReading& reading = readings[static_cast<std::size_t>(entry.key.line)];
        if (reading.state != LineState::Entry)
            continue;
        reading.section = narrowSection(at(m_headers[entry.header]));
        reading.key = at(entry.key).toString();
    }
    return readings;
}

QString narrowSection(QStringView header)
{
    return header.mid(1).chopped(1).toString();
}

QString narrowHeader(const QString& section)
{
    return QLatin1Char('[') + section + QLatin1Char(']');
}
