#include "inspection/files/SearchFollower.h"

#include <utility>

namespace {

constexpr int restShare = 10; // how much longer than a search the pause behind it is

} // namespace

SearchFollower::SearchFollower(QObject* parent) : QObject(parent)
{
    connect(&m_runner, &JobRunner::finished, this, &SearchFollower::end);
}

void SearchFollower::begin(const QString& pattern)
{
    m_runner.cancel();
    m_pattern = pattern;
    m_first.clear();
    m_pause = 0;
    m_clock.start();
    takeStamps();
}

void SearchFollower::setFirst(const QString& path)
{
    m_first = path;
    m_firstStamp = FileStamp::of(path);
}

void SearchFollower::stop()
{
    m_runner.cancel();
    m_pattern.clear();
}

// A large folder that changes all the time is not read all the time.
void SearchFollower::look()
{
    if (m_pattern.isEmpty() || m_runner.isRunning() || m_clock.elapsed() < m_pause || isUnchanged())
        return;
    takeStamps();
    search();
}

bool SearchFollower::isUnchanged() const
{
    return m_folderStamp.isSure() && m_firstStamp.isSure() &&
           m_folderStamp == FileStamp::of(m_pattern.left(m_pattern.lastIndexOf(u'/') + 1)) &&
           m_firstStamp == FileStamp::of(m_first);
}

void SearchFollower::takeStamps()
{
    m_folderStamp = FileStamp::of(m_pattern.left(m_pattern.lastIndexOf(u'/') + 1));
    m_firstStamp = FileStamp::of(m_first);
}

void SearchFollower::search()
{
    m_clock.start();
    m_entries.clear();
    m_job = std::make_unique<FileSearchJob>(m_pattern, [this](std::vector<FoundEntry> entries) {
        m_entries.insert(m_entries.end(), entries.begin(), entries.end());
    });
    if (m_runner.start(*m_job))
        end();
}

void SearchFollower::end()
{
    m_pause = m_clock.restart() * restShare;
    emit found(*m_job, m_entries);
}
