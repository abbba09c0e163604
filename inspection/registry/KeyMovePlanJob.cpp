#include "inspection/registry/KeyMovePlanJob.h"

#include "inspection/registry/StoreEntry.h"

#include <QLocale>

KeyMovePlanJob::KeyMovePlanJob(const QString& from, const QString& to, Original original)
    : m_from(from), m_to(to), m_original(original)
{
}

bool KeyMovePlanJob::step()
{
    if (m_next < 0) {
        list();
        m_next = 0;
        return true;
    }
    if (m_next >= m_paths.size())
        return false;
    const QString& path = m_paths.at(m_next++);
    const auto entry = StoreEntry::read(path);
    if (m_original == Original::Goes)
        m_change.push_back({path, entry, std::nullopt});
    m_change.push_back({m_to + path.mid(m_from.size()), std::nullopt, entry});
    return true;
}

// A key that was created has a mark beside what it has got since.
void KeyMovePlanJob::list()
{
    const auto entry = StoreEntry::read(m_from);
    if (entry && entry->isNull())
        m_paths.append(m_from);
    m_paths += StoreEntry::below(m_from);
}

QString KeyMovePlanJob::progress() const
{
    return QLocale().toString(qMax(m_next, 0));
}
