#include "pages/profiles/ProfileReadingQueue.h"

#include "inspection/profiles/ParsedProfileCache.h"
#include "inspection/profiles/ProfileAskingJob.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int cacheMilliseconds = 3000;

} // namespace

ProfileReadingQueue::ProfileReadingQueue(QObject* parent) : QObject(parent)
{
    m_cacheEnd.setSingleShot(true);
    m_cacheEnd.setInterval(cacheMilliseconds);
    connect(&m_cacheEnd, &QTimer::timeout, this, [this] { m_cache.reset(); });
    connect(&m_runner, &JobRunner::finished, this, &ProfileReadingQueue::finish);
}

ProfileReadingQueue::~ProfileReadingQueue() = default;

void ProfileReadingQueue::setDocument(std::shared_ptr<const ProfileDocument> document)
{
    drop();
    m_document = std::move(document);
}

void ProfileReadingQueue::drop()
{
    m_runner.cancel();
    m_job.reset();
    m_cache.reset();
    m_waiting.clear();
}

void ProfileReadingQueue::ask(std::vector<int> names)
{
    std::reverse(names.begin(), names.end());
    m_waiting = std::move(names);
    if (m_waiting.empty() || m_runner.isRunning())
        return;
    m_job = std::make_unique<ProfileAskingJob>(
        m_document, [this] { return next(); },
        [this](int name, const ProfileReading& reading) { emit answered(name, reading); });
    if (m_runner.start(*m_job))
        finish();
}

int ProfileReadingQueue::next()
{
    if (m_waiting.empty())
        return -1;
    const int name = m_waiting.back();
    m_waiting.pop_back();
    return name;
}

void ProfileReadingQueue::finish()
{
    m_cache = std::make_unique<ParsedProfileCache>(m_document->path());
    m_cacheEnd.start();
    m_job.reset();
    if (!m_waiting.empty()) // has come behind the last step
        ask({m_waiting.rbegin(), m_waiting.rend()});
}
