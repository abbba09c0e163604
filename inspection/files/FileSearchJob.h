#pragma once

#include "inspection/Job.h"
#include "inspection/files/DirectoryReadAhead.h"
#include "inspection/files/FileSearch.h"

#include <QCoreApplication>

#include <functional>
#include <optional>
#include <vector>

/// A directory search through the services, from its first entry to its last.
class FileSearchJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(FileSearchJob)

public:
    /// Gets the entries in the order of the service, some at a time.
    using Receiver = std::function<void(std::vector<FoundEntry> entries)>;

    FileSearchJob(const QString& pattern, Receiver receiver);

    /// Why a search for `pattern` finds nothing whatever there is; empty where it may find
    /// something.
    static QString fault(const QString& pattern);

    /// Reads a piece of the directory, later asks the service for the next entries.
    bool step() override;
    QString progress() const override;
    /// True before the call in which the service lists a large directory.
    bool isNextStepLong() const override;

    const QString& pattern() const { return m_pattern; }
    /// How many entries have been found so far.
    int found() const { return m_found; }
    /// What the service does not tell: that the directory cannot be opened, how many names it holds
    /// that the service leaves out, and what a pattern in the form of Windows is to it. Empty when
    /// there is nothing to be said.
    QString remark() const;

private:
    std::optional<FoundEntry> next();
    QString leftOutNames() const;

    QString m_pattern;
    Receiver m_receiver;
    DirectoryReadAhead m_readAhead;
    std::optional<FileSearch> m_search; ///< nothing before the service has been asked
    int m_found = 0;
};
