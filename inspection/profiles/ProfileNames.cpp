#include "inspection/profiles/ProfileNames.h"

#include <QHash>

#include <algorithm>

namespace {

constexpr int linesAStep = 1024;

bool isNamed(LineState state)
{
    return state == LineState::Entry || state == LineState::NotFound;
}

} // namespace

void ProfileNames::lookFor(const Name& name)
{
    m_wanted = name;
    m_found = -1;
    m_unlookedAt = count();
}

bool ProfileNames::step(const ProfileLines& lines)
{
    if (m_unlookedAt > 0) {
        lookAgain(lines);
        return true;
    }
    const int end = std::min(lines.count(), m_next + linesAStep);
    for (; m_next < end; ++m_next)
        addLine(lines, m_next);
    return m_next < lines.count();
}

void ProfileNames::lookAgain(const ProfileLines& lines)
{
    const int end = std::max(0, m_unlookedAt - linesAStep);
    for (; m_unlookedAt > end; --m_unlookedAt) {
        if (name(lines, m_unlookedAt - 1) == m_wanted)
            m_found = m_unlookedAt - 1;
    }
}

// Neither family finds a name twice. So a name that both find in one line is new.
void ProfileNames::addLine(const ProfileLines& lines, int line)
{
    const bool isWide = isNamed(lines.wideMark(line).state);
    const bool isNarrow = isNamed(lines.narrowMark(line).state);
    if (!isWide && !isNarrow)
        return;
    const LineReading wide = isWide ? lines.wide(line) : LineReading();
    const LineReading narrow = isNarrow ? lines.narrow(line) : LineReading();
    const Name wideName(wide.section, wide.key);
    const Name narrowName(narrow.section, narrow.key);
    const bool isMarkedFound = wide.state == LineState::Entry;
    if (isMarkedFound && isNarrow && wideName == narrowName) {
        add({line, ProfileFamily::Wide}, wideName);
        return;
    }
    if (isWide)
        addUnlessKnown(lines, {line, ProfileFamily::Wide}, wideName);
    if (isNarrow)
        addUnlessKnown(lines, {line, ProfileFamily::Narrow}, narrowName);
}

void ProfileNames::addUnlessKnown(const ProfileLines& lines, const Place& place, const Name& name)
{
    std::uint32_t& known = m_single.place(qHash(name), [&](std::uint32_t other) {
        return this->name(lines, static_cast<int>(other)) == name;
    });
    if (known != NameTable::none) {
        m_repetitions.push_back({place.line, static_cast<int>(known)});
        return;
    }
    known = static_cast<std::uint32_t>(m_places.size());
    add(place, name);
}

void ProfileNames::add(const Place& place, const Name& name)
{
    if (name == m_wanted && m_found < 0)
        m_found = count();
    m_places.push_back(place);
}

ProfileNames::Name ProfileNames::name(const ProfileLines& lines, int name) const
{
    const Place at = place(name);
    const LineReading reading =
        at.family == ProfileFamily::Wide ? lines.wide(at.line) : lines.narrow(at.line);
    return {reading.section, reading.key};
}

int ProfileNames::ofLine(int line) const
{
    const auto own =
        std::lower_bound(m_places.begin(), m_places.end(), line,
                         [](const Place& place, int wanted) { return place.line < wanted; });
    const auto repeated =
        std::lower_bound(m_repetitions.begin(), m_repetitions.end(), line,
                         [](const Repetition& each, int wanted) { return each.line < wanted; });
    const int first =
        repeated != m_repetitions.end() && repeated->line == line ? repeated->name : -1;
    if (own == m_places.end() || own->line != line)
        return first;
    const int name = static_cast<int>(own - m_places.begin());
    return first < 0 ? name : std::min(first, name);
}
