#include "inspection/JobRunner.h"

#include <QElapsedTimer>

namespace {

constexpr qint64 sliceMilliseconds = 12; // leaves room for a last step and for painting

} // namespace

JobRunner::JobRunner(QObject* parent) : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &JobRunner::next);
}

bool JobRunner::start(Job& job)
{
    Q_ASSERT(!isRunning());
    m_job = &job;
    if (!slice())
        return true;
    m_timer.start(0);
    return false;
}

bool JobRunner::cancel()
{
    const bool complete = isRunning() && !m_job;
    m_timer.stop();
    m_job = nullptr;
    return complete;
}

bool JobRunner::slice()
{
    QElapsedTimer clock;
    clock.start();
    while (m_job->step()) {
        if (m_job->isNextStepLong() || clock.elapsed() >= sliceMilliseconds)
            return true;
    }
    m_job = nullptr;
    return false;
}

void JobRunner::next()
{
    if (m_job) {
        if (slice())
            emit progressed();
        return;
    }
    m_timer.stop();
    emit finished();
}
