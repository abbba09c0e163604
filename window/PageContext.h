#pragma once

#include "inspection/Job.h"

#include <QString>

#include <functional>
#include <memory>

class QUndoStack;

/// What a part of a page asks of the page around it: a panel, a dialog or an editor gets this and
/// nothing else of the page.
class PageContext
{
public:
    enum class Report
    {
        Info,
        Warning,
        Error
    };

    /// Shows `text` below the page's body until the next report, and logs it: never pass secrets.
    virtual void report(Report kind, const QString& text) = 0;
    /// Shows `text` in the same place without logging it.
    virtual void setStatus(const QString& text) = 0;
    /// Writes a line of the audit trail into the log without showing it: see `changeLine`.
    virtual void log(const QString& line) = 0;

    /// The changes that were made on this page and can be undone, each a MadeChange. It lives as
    /// long as the page, and nothing is undone while a job runs.
    virtual QUndoStack& undoStack() = 0;

    /// True while a job runs.
    virtual bool isBusy() const = 0;

    /// Runs a job. The page is covered with `title` ("Searching"), the job's progress and a Cancel
    /// button, unless the job ends within its first slice. One job at a time: a further one is
    /// dropped. `finished(J& job, bool complete)` is called once at the end, when the page is
    /// usable again, with `complete` false after Cancel; the job is destroyed behind it. When the
    /// page is destroyed before the end, it is not called.
    template <typename J, typename Finished>
    void startJob(const QString& title, std::unique_ptr<J> job, Finished finished)
    {
        J& reference = *job;
        run(title, std::move(job),
            [&reference, finished = std::move(finished)](bool complete) mutable {
                finished(reference, complete);
            });
    }

protected:
    PageContext() = default;
    ~PageContext() = default;

private:
    virtual void run(const QString& title, std::unique_ptr<Job> job,
                     std::function<void(bool complete)> finished) = 0;
};
