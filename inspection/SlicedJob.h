#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

/// A long job done in slices on the event loop. The services are not thread-safe, so work stays on
/// the GUI thread; between two slices of at most 30 ms the window paints and answers.
class SlicedJob : public QObject
{
    Q_OBJECT

public:
    /// Does a small piece of the work, 5 ms or less; returns false when nothing is left.
    using Step = std::function<bool()>;

    explicit SlicedJob(QObject* parent = nullptr);

    /// Does the first slice at once: true when that was all, and then no signal is emitted.
    /// Otherwise the rest follows on the event loop. One job at a time: not to be called while one
    /// is running.
    bool start(Step step);
    /// Drops what is left; emits nothing. Does nothing when no job is running. True when the last
    /// step had been done already, and only `finished` was still to come.
    bool cancel();
    /// To be called by a step when the one after it is known to be long, as one call of a service
    /// may be: that one gets a slice of its own.
    void endSlice() { m_endsSlice = true; }
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
    Step m_step;
    bool m_endsSlice = false;
};
