#pragma once

#include "inspection/log/LimitedLines.h"
#include "inspection/registry/StoreChange.h"

#include <map>

/// Records what a change makes of entries of the settings store, so that it can be taken back. Each
/// entry is remembered as it was when it was watched first.
class StoreRecorder
{
public:
    /// Gets a line of the audit trail for each entry that has changed, and for very many of them
    /// the number of the rest.
    using Log = LimitedLines::Log;

    explicit StoreRecorder(Log log = {});

    /// To be called before an entry is changed.
    void watch(const QString& path);
    /// To be called before an entry and all below it are changed.
    void watchTree(const QString& path);
    /// To be called after that: reads what has been watched since the last call.
    void record();

    /// To be called when the change is complete: what the log lacks is told.
    void endLog() { m_lines.end(); }

    /// What has been changed so far.
    StoreChange change() const;

private:
    struct State
    {
        std::optional<QVariant> before;
        std::optional<QVariant> after;
    };
    using States = std::map<QString, State>;

    LimitedLines m_lines;
    States m_states;
    std::vector<States::iterator> m_watched;
};
