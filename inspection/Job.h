#pragma once

#include <QString>

/// A piece of work that may take long, done step by step: by whoever owns it in a loop, or by the
/// window in slices between which it paints and answers.
class Job
{
public:
    Job() = default;
    virtual ~Job();

    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// Does a small piece, 5 ms or less; returns false when nothing is left to be done. Opens no
    /// dialog.
    virtual bool step() = 0;

    /// How far it has come, in words, such as "1,234 values". Empty by default.
    virtual QString progress() const;

    /// True where the next step is known to be long, as one call of a service may be. False by
    /// default.
    virtual bool isNextStepLong() const;
};
