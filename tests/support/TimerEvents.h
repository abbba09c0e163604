#pragma once

#include <QEvent>
#include <QObject>

/// Counts the ticks of the timers of one object. They tell that what the object does at each of
/// them has had its turn, also where it is to do nothing.
class TimerEvents : public QObject
{
public:
    explicit TimerEvents(QObject* object) { object->installEventFilter(this); }

    int count() const { return m_count; }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        m_count += event->type() == QEvent::Timer ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};
