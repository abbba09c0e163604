#include "trace/reading/CallAlignment.h"

#include "inspection/profiles/CommonRuns.h"

#include <map>
#include <unordered_map>
#include <utility>

namespace trace {

namespace {

using Signature = CallAlignment::Signature;

std::size_t at(int place)
{
    return static_cast<std::size_t>(place);
}

quint64 exact(const Signature& signature)
{
    return signature.arguments * 31 + static_cast<quint64>(signature.operation);
}

quint64 loose(const Signature& signature)
{
    return static_cast<quint64>(signature.operation);
}

/// Numbers from 0 on for whatever is equal.
class Numbers
{
public:
    int of(quint64 key) { return m_numbers.emplace(key, count()).first->second; }
    int count() const { return static_cast<int>(m_numbers.size()); }

private:
    std::unordered_map<quint64, int> m_numbers;
};

template <typename Key>
std::vector<int> numbered(const std::vector<int>& places, const std::vector<Signature>& signatures,
                          Key key, Numbers& numbers)
{
    std::vector<int> result;
    result.reserve(places.size());
    for (const int place : places)
        result.push_back(numbers.of(key(signatures[at(place)])));
    return result;
}

std::vector<int> part(const std::vector<int>& places, int from, int to)
{
    return {places.begin() + from, places.begin() + to};
}

} // namespace

CallAlignment::CallAlignment(std::vector<Signature> before, std::vector<Signature> after)
    : m_before(std::move(before)),
      m_after(std::move(after)),
      m_ofBefore(m_before.size(), -1),
      m_ofAfter(m_after.size(), -1)
{
    std::map<int, Group> groups;
    for (std::size_t i = 0; i < m_before.size(); ++i)
        groups[m_before[i].group].before.push_back(static_cast<int>(i));
    for (std::size_t i = 0; i < m_after.size(); ++i)
        groups[m_after[i].group].after.push_back(static_cast<int>(i));
    for (const auto& [number, group] : groups)
        align(group);
}

void CallAlignment::align(const Group& group)
{
    Numbers numbers;
    const std::vector<int> before = numbered(group.before, m_before, exact, numbers);
    const std::vector<int> after = numbered(group.after, m_after, exact, numbers);
    const CommonRuns common(before, after, numbers.count());
    int beforeDone = 0;
    int afterDone = 0;
    for (const CommonRuns::Run& run : common.runs()) {
        alignGap(
            {part(group.before, beforeDone, run.before), part(group.after, afterDone, run.after)});
        for (int i = 0; i < run.count; ++i)
            pair(group.before[at(run.before + i)], group.after[at(run.after + i)]);
        beforeDone = run.before + run.count;
        afterDone = run.after + run.count;
    }
    alignGap({part(group.before, beforeDone, static_cast<int>(group.before.size())),
              part(group.after, afterDone, static_cast<int>(group.after.size()))});
}

void CallAlignment::alignGap(const Group& gap)
{
    if (gap.before.empty() || gap.after.empty())
        return;
    Numbers numbers;
    const std::vector<int> before = numbered(gap.before, m_before, loose, numbers);
    const std::vector<int> after = numbered(gap.after, m_after, loose, numbers);
    const CommonRuns common(before, after, numbers.count());
    for (const CommonRuns::Run& run : common.runs()) {
        for (int i = 0; i < run.count; ++i)
            pair(gap.before[at(run.before + i)], gap.after[at(run.after + i)]);
    }
}

void CallAlignment::pair(int before, int after)
{
    m_ofBefore[at(before)] = after;
    m_ofAfter[at(after)] = before;
}

} // namespace trace
