#include "trace/reading/Trimming.h"

#include "trace/reading/TraceFile.h"

#include <algorithm>

namespace trace {

Trimming::Trimming(TraceFile& file, const CallFilter& wanted) : m_file(file), m_filter(wanted)
{
    for (const CallEntry& entry : m_file.calls()) {
        const bool isWanted = m_filter.admits(m_file, entry);
        if (isWanted)
            m_wanted.insert(entry.number);
        if (isWanted || HandleTable::isConcerned(m_file.operation(entry)))
            addEnclosing(entry, m_enclosing);
    }
}

// A damaged recording may name a call that comes later.
void Trimming::addEnclosing(const CallEntry& entry, QSet<qint64>& numbers) const
{
    const CallEntry* inner = &entry;
    while (inner->enclosing > 0 && inner->enclosing < inner->number) {
        const int index = m_file.indexOf(inner->enclosing);
        if (index < 0)
            return;
        numbers.insert(inner->enclosing);
        inner = &m_file.calls()[static_cast<std::size_t>(index)];
    }
}

void Trimming::add(const CallEntry& entry)
{
    const bool isConcerned = HandleTable::isConcerned(m_file.operation(entry));
    if (isConcerned || m_wanted.contains(entry.number) || m_enclosing.contains(entry.number)) {
        const std::vector<qint64> needs = needsOf(entry);
        if (!needs.empty())
            m_needs.insert(entry.number, needs);
    }
    if (isConcerned)
        m_handles.follow(m_file, entry);
}

std::vector<qint64> Trimming::needsOf(const CallEntry& entry)
{
    std::vector<qint64> needs;
    const std::optional<Call> call = m_file.call(entry);
    if (call)
        addMakers(call->arguments, needs);
    if (entry.enclosing > 0)
        needs.push_back(entry.enclosing);
    return needs;
}

void Trimming::addMakers(const RecordedValue& value, std::vector<qint64>& makers) const
{
    const HandleTable::Entry* const handle = m_handles.find(value.textOf("handle"));
    if (handle)
        makers.push_back(handle->maker);
    for (const RecordedMember& member : value.members)
        addMakers(member.value, makers);
}

QSet<qint64> Trimming::withNeeds() const
{
    QSet<qint64> all = m_wanted;
    std::vector<qint64> open(m_wanted.begin(), m_wanted.end());
    while (!open.empty()) {
        const qint64 number = open.back();
        open.pop_back();
        for (const qint64 need : m_needs.value(number)) {
            if (m_file.indexOf(need) < 0 || all.contains(need))
                continue;
            all.insert(need);
            open.push_back(need);
        }
    }
    return all;
}

std::vector<qint64> Trimming::chosen() const
{
    const QSet<qint64> all = withNeeds();
    std::vector<qint64> numbers;
    for (const CallEntry& entry : m_file.calls()) {
        const bool isAnswer = entry.isCallback && all.contains(entry.enclosing);
        if (isAnswer || all.contains(entry.number))
            numbers.push_back(entry.number);
    }
    return numbers;
}

} // namespace trace
