#pragma once

#include "inspection/Job.h"

#include <QObject>
#include <QTimer>

/// Does a job in slices on the event loop. The services are not thread-safe, so work stays on the
/// GUI thread; between two slices of at most 30 ms the window paints and answers.
class JobRunner : public QObject
{
    Q_OBJECT

public:
    explicit JobRunner(QObject* parent = nullptr);

    /// Does the first slice at once: true when that was all, and then no signal is emitted.
    /// Otherwise the rest follows on the event loop, and the job has to live until `finished` or
    /// `cancel`. One job at a time: not to be called while one is running.
    bool start(Job& job);
    /// Drops what is left; emits nothing. Does nothing when no job is running. True when the last
    /// step had been done already, and only `finished` was still to come.
    bool cancel();
    bool isRunning() const { return m_timer.isActive(); }

signals:
    /// A slice has ended and another one follows.
    void progressed();
    /// In a turn of the event loop of its own: what is done then may take as long as a slice.
    void finished();

private:
    bool slice();
    void next();

    QTimer m_timer;
    Job* m_job = nullptr; // null when its last step has been done
};
