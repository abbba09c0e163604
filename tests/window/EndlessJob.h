#pragma once

#include "inspection/Job.h"

#include <QTest>

/// A job that goes on until it is cancelled, a millisecond a step.
class EndlessJob : public Job
{
public:
    explicit EndlessJob(const QString& progress = {}) : m_progress(progress) {}

    bool step() override
    {
        QTest::qSleep(1);
        return true;
    }
    QString progress() const override { return m_progress; }

private:
    QString m_progress;
};
