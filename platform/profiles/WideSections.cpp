#include "platform/profiles/WideSections.h"

#include <algorithm>
#include <utility>

WideSections::WideSections(std::vector<QString> prefixes) : m_prefixes(std::move(prefixes))
{
    std::sort(m_prefixes.begin(), m_prefixes.end());
}

bool WideSections::findAtOnce(const QString& section, const QString& key) const
{
    constexpr QChar slash = QLatin1Char('/');
    if (section.isEmpty())
        return !key.contains(slash);
    const QString prefix = section + slash;
    const auto next = std::upper_bound(m_prefixes.begin(), m_prefixes.end(), prefix + key);
    return next != m_prefixes.begin() && *std::prev(next) == prefix;
}
