#include "inspection/SlicedJob.h"

#include <QElapsedTimer>

namespace {

constexpr qint64 sliceMilliseconds = 12; // leaves room for a last step and for painting

} // namespace

SlicedJob::SlicedJob(QObject* parent) : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &SlicedJob::next);
}

bool SlicedJob::start(Step step)
{
    Q_ASSERT(!isRunning());
    m_step = std::move(step);
    if (!slice())
        return true;
    m_timer.start(0);
    return false;
}

bool SlicedJob::cancel()
{
    const bool complete = isRunning() && !m_step;
    m_timer.stop();
    m_step = nullptr;
    return complete;
}

bool SlicedJob::slice()
{
    QElapsedTimer clock;
    clock.start();
    m_endsSlice = false;
    while (m_step()) {
        if (m_endsSlice || clock.elapsed() >= sliceMilliseconds)
            return true;
    }
    m_step = nullptr;
    return false;
}

void SlicedJob::next()
{
    if (m_step) {
        if (slice())
            emit progressed();
        return;
    }
    m_timer.stop();
    emit finished();
}
