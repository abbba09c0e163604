#include "trace/reading/Statistics.h"

#include "trace/operations/Operation.h"
#include "trace/reading/TraceFile.h"

#include <algorithm>
#include <tuple>

namespace trace {

namespace {

qint64 keyOf(const CallEntry& entry)
{
    return (static_cast<qint64>(entry.manager) << 32U) + entry.operation;
}

QString keyOf(const AskedFor& asked)
{
    return QString::number(static_cast<int>(asked.kind)) + asked.place + QChar(0) + asked.name;
}

} // namespace

void Statistics::add(const CallEntry& entry, bool isCounted)
{
    if (isCounted)
        count(entry);
    const Operation* const operation = m_file.operation(entry);
    const bool isFollowed = HandleTable::isConcerned(operation);
    const bool isAsking = isCounted && asks(entry);
    const auto call = isFollowed || isAsking ? m_file.call(entry) : std::optional<Call>();
    if (!call)
        return;
    const auto asked =
        isAsking ? AskedFor::of(*call, entry.isFailure, m_handles) : std::optional<AskedFor>();
    if (asked)
        count(*asked);
    if (isFollowed)
        m_handles.follow(*call, *operation);
}

bool Statistics::asks(const CallEntry& entry)
{
    const auto place = static_cast<std::size_t>(entry.operation);
    if (place >= m_asks.size())
        m_asks.resize(static_cast<std::size_t>(m_file.nameCount()));
    std::optional<bool>& asks = m_asks[place];
    if (!asks)
        asks = AskedFor::isConcerned(m_file.name(entry.operation));
    return *asks;
}

void Statistics::count(const CallEntry& entry)
{
    m_callers.insert(entry.caller);
    OperationCount& count = m_operations[keyOf(entry)];
    if (count.calls++ == 0) {
        const Operation* const operation = m_file.operation(entry);
        count.manager = m_file.name(entry.manager);
        count.operation = m_file.name(entry.operation);
        count.isFixed = operation && operation->isFixed;
    }
    count.failures += entry.isFailure ? 1 : 0;
    count.unreturned += entry.hasReturned() ? 0 : 1;
    count.time += qMax<qint64>(0, entry.duration);
    count.longest = qMax(count.longest, entry.duration);
}

void Statistics::count(const AskedFor& asked)
{
    const QString key = keyOf(asked);
    auto place = m_askedPlaces.find(key);
    if (place == m_askedPlaces.end()) {
        place = m_askedPlaces.insert(key, m_asked.size());
        m_asked.push_back({asked.kind, asked.place, asked.name});
    }
    AskedCount& count = m_asked[*place];
    ++count.asked;
    count.absent += asked.isAbsent ? 1 : 0;
}

QStringList Statistics::libraries() const
{
    QStringList names;
    for (const int caller : m_callers)
        names += Call::library(m_file.name(caller));
    names.removeAll(QString()); // procedures have no caller
    names.removeDuplicates();
    names.sort();
    return names;
}

std::vector<Statistics::OperationCount> Statistics::operations() const
{
    std::vector<OperationCount> all(m_operations.begin(), m_operations.end());
    std::sort(all.begin(), all.end(), [](const OperationCount& a, const OperationCount& b) {
        return std::tie(b.time, a.manager, a.operation) < std::tie(a.time, b.manager, b.operation);
    });
    return all;
}

std::vector<Statistics::AskedCount> Statistics::asked() const
{
    std::vector<AskedCount> all = m_asked;
    std::sort(all.begin(), all.end(), [](const AskedCount& a, const AskedCount& b) {
        return std::tie(b.asked, a.kind, a.place, a.name) <
               std::tie(a.asked, b.kind, b.place, b.name);
    });
    return all;
}

} // namespace trace
