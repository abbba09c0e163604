#include "trace/reading/HandleHistory.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace trace {

void HandleHistory::add(const QString& handle, const HandleTable::Entry* made, qint64 call)
{
    std::vector<Life>& lives = m_lives[handle];
    if (made)
        lives.push_back(
            {call, std::numeric_limits<qint64>::max(), *m_descriptions.insert(made->description)});
    else if (!lives.empty())
        lives.back().until = call;
}

QString HandleHistory::description(const QString& handle, qint64 call) const
{
    const auto lives = m_lives.constFind(handle);
    if (lives == m_lives.constEnd())
        return {};
    const auto behind =
        std::upper_bound(lives->begin(), lives->end(), call,
                         [](qint64 number, const Life& life) { return number < life.from; });
    if (behind == lives->begin() || std::prev(behind)->until < call)
        return {};
    return std::prev(behind)->description;
}

QString HandleHistory::path(const QString& handle, qint64 call) const
{
    const QString known = description(handle, call);
    return known.isNull() ? handle : known;
}

} // namespace trace
