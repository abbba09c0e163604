#include "inspection/registry/StoreChangeJob.h"

#include "inspection/registry/StoreEntry.h"

#include <QLocale>

#include <utility>

StoreChangeJob::StoreChangeJob(std::shared_ptr<const StoreChange> change, Direction direction,
                               Others others, StoreRecorder::Log log)
    : m_change(std::move(change)), m_direction(direction), m_others(others), m_lines(std::move(log))
{
}

// What is to come is written before anything is removed: wherever the job is cancelled, what moves
// from one place to another stands in one of them at least. What is below an entry is removed
// before the entry, which mostly leaves no group that removing the entry would have to spare.
bool StoreChangeJob::step()
{
    const std::size_t count = m_change->size();
    const std::size_t at = count > 0 ? m_next % count : 0;
    if (m_next >= 3 * count || (m_next >= count && isStopped())) {
        m_lines.end();
        return false;
    }
    switch (m_next++ / count) {
    case 0: look((*m_change)[at]); break;
    case 1: writeEntry((*m_change)[at]); break;
    default: removeEntry((*m_change)[count - 1 - at]); break;
    }
    return true;
}

QString StoreChangeJob::progress() const
{
    return QLocale().toString(m_changed);
}

const StoreChangeJob::Entry& StoreChangeJob::from(const EntryChange& change) const
{
    return m_direction == Direction::Make ? change.before : change.after;
}

const StoreChangeJob::Entry& StoreChangeJob::to(const EntryChange& change) const
{
    return m_direction == Direction::Make ? change.after : change.before;
}

bool StoreChangeJob::isLeft(const EntryChange& change) const
{
    return m_others == Others::LeaveBe && m_left.contains(change.path);
}

// An entry that is already what it is to be is nobody else's.
void StoreChangeJob::look(const EntryChange& change)
{
    const Entry now = StoreEntry::read(change.path);
    if (now == from(change) || now == to(change))
        return;
    m_foreign.append(change.path);
    m_left.insert(change.path);
}

void StoreChangeJob::removeEntry(const EntryChange& change)
{
    if (to(change) || isLeft(change))
        return;
    const Entry before = StoreEntry::read(change.path);
    if (!before)
        return;
    StoreEntry::remove(change.path);
    told(change, before);
}

void StoreChangeJob::writeEntry(const EntryChange& change)
{
    if (!to(change) || isLeft(change))
        return;
    const Entry before = StoreEntry::read(change.path);
    if (before == to(change))
        return;
    StoreEntry::write(change.path, *to(change));
    told(change, before);
}

void StoreChangeJob::told(const EntryChange& change, const Entry& before)
{
    ++m_changed;
    m_lines.add([&] { return auditLine({change.path, before, to(change)}); });
}
