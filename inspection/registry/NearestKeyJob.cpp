#include "inspection/registry/NearestKeyJob.h"

#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

#include <utility>

NearestKeyJob::NearestKeyJob(std::shared_ptr<const RegistryIndex> index, const QStringList& paths)
    : m_index(std::move(index)), m_paths(paths)
{
    beginPath();
}

// First for keys that differ in the case of letters, in the order of the paths, then for mistyped
// ones, in which the least literal path comes first: it is the one without a typed root.
bool NearestKeyJob::step()
{
    if (m_difference != Difference::None || m_at == 2 * m_paths.size())
        return false;
    const bool isDone = m_at < m_paths.size() ? !stepCase() : !stepTyping();
    if (isDone) {
        ++m_at;
        beginPath();
    }
    return true;
}

void NearestKeyJob::beginPath()
{
    const int count = m_paths.size();
    if (m_at == 2 * count)
        return;
    const QString& path = m_paths.at(m_at < count ? m_at : 2 * count - 1 - m_at);
    m_levels = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    m_level = 0;
    m_parents = QStringList(QString());
    m_next.clear();
    m_scan.reset();
    m_distance.reset();
}

bool NearestKeyJob::find(Difference difference, const QString& path)
{
    m_difference = difference;
    m_path = path;
    return false;
}

// False when the path has been looked at.
bool NearestKeyJob::stepCase()
{
    if (m_level == m_levels.size())
        return m_levels.isEmpty() ? false : find(Difference::Case, m_parents.first());
    if (!m_parents.isEmpty()) {
        scanForCase();
        return true;
    }
    endLevel();
    return !m_parents.isEmpty();
}

void NearestKeyJob::scanForCase()
{
    const QString& parent = m_parents.first();
    const QString& level = m_levels.at(m_level);
    if (!m_scan)
        m_scan.emplace(*m_index, parent);
    const auto isWanted = [&level](const QString& name) {
        return name.compare(level, Qt::CaseInsensitive) == 0;
    };
    const auto take = [&](const QString& name) {
        (name == level ? m_exact : m_others).append(RegistryPath::join(parent, name));
    };
    if (m_scan->next(isWanted, take))
        return;
    m_scan.reset();
    m_next += std::exchange(m_exact, {}) + std::exchange(m_others, {});
    m_parents.removeFirst();
}

void NearestKeyJob::endLevel()
{
    m_next.removeDuplicates();
    m_parents = std::exchange(m_next, {});
    ++m_level;
}

// False when the path has been looked at.
bool NearestKeyJob::stepTyping()
{
    if (!m_scan) {
        beginTyping();
        return m_scan.has_value();
    }
    const auto isNearer = [this](const QString& name) { return m_distance->to(name) < m_mistakes; };
    const auto take = [this](const QString& name) {
        m_nearest = name;
        m_mistakes = m_distance->to(name);
    };
    if (m_scan->next(isNearer, take))
        return true;
    endTyping();
    return false;
}

void NearestKeyJob::beginTyping()
{
    m_deepest.clear();
    m_level = 0;
    while (m_level < m_levels.size() && hasKey(RegistryPath::join(m_deepest, m_levels.at(m_level))))
        m_deepest = RegistryPath::join(m_deepest, m_levels.at(m_level++));
    if (m_level == m_levels.size())
        return;
    m_distance.emplace(m_levels.at(m_level));
    m_mistakes = m_distance->mostMistakes() + 1;
    m_nearest.clear();
    m_scan.emplace(*m_index, m_deepest);
}

// Below the nearest key the rest of the path is taken along as far as there are keys.
void NearestKeyJob::endTyping()
{
    if (m_nearest.isEmpty())
        return;
    QString path = RegistryPath::join(m_deepest, m_nearest);
    for (int level = m_level + 1; level < m_levels.size(); ++level) {
        const QString below = RegistryPath::join(path, m_levels.at(level));
        if (!hasKey(below))
            break;
        path = below;
    }
    find(Difference::Typing, path);
}

bool NearestKeyJob::hasKey(const QString& path) const
{
    return RegistryIndexReader(*m_index, path).next() ||
           (hasRegistryEntry(path) && rawRegistryEntry(path).isNull());
}
