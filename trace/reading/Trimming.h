#pragma once

#include "trace/reading/CallEntry.h"
#include "trace/reading/CallFilter.h"
#include "trace/reading/HandleTable.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace trace {

class TraceFile;

/// Chooses calls of a recording together with what they need: the calls that enclose them, those
/// that made the handles they use, and the answers of the procedures that they called.
class Trimming
{
public:
    /// The recording has been read, outlives this, and is not read on meanwhile.
    Trimming(TraceFile& file, const CallFilter& wanted);

    /// Takes over a call; all calls come in the order of entry.
    void add(const CallEntry& entry);

    /// The numbers of the chosen calls, ascending.
    std::vector<qint64> chosen() const;
    /// How many calls are wanted for themselves.
    qint64 wantedCount() const { return m_wanted.size(); }

private:
    void addEnclosing(const CallEntry& entry, QSet<qint64>& numbers) const;
    std::vector<qint64> needsOf(const CallEntry& entry);
    void addMakers(const RecordedValue& value, std::vector<qint64>& makers) const;
    QSet<qint64> withNeeds() const;

    TraceFile& m_file;
    CallFilter m_filter;
    HandleTable m_handles;
    QSet<qint64> m_wanted;
    QSet<qint64> m_enclosing; ///< calls around those that are wanted or make handles
    QHash<qint64, std::vector<qint64>> m_needs;
};

} // namespace trace
