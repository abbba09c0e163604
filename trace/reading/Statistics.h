#pragma once

#include "trace/reading/AskedFor.h"
#include "trace/reading/CallEntry.h"
#include "trace/reading/HandleTable.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <optional>
#include <vector>

namespace trace {

class TraceFile;

/// What a recording comes to: how often and how long each operation was called, and what was asked
/// for most.
class Statistics
{
public:
    struct OperationCount
    {
        QString manager;
        QString operation;
        qint64 calls = 0;
        qint64 failures = 0;
        qint64 unreturned = 0; ///< calls that never returned
        qint64 time = 0;       ///< of all calls, in nanoseconds; calls within them are counted too
        qint64 longest = 0;    ///< of one call, in nanoseconds
        bool isFixed = false;  ///< has the same result for all arguments
    };
    struct AskedCount
    {
        AskedFor::Kind kind;
        QString place;
        QString name;
        qint64 asked = 0;
        qint64 absent = 0; ///< answers that it is not there
    };

    /// The recording outlives this.
    explicit Statistics(TraceFile& file) : m_file(file) {}

    /// Takes over a call; all calls come in the order of entry. What handles stand for is followed
    /// through calls that are not counted too.
    void add(const CallEntry& entry, bool isCounted = true);

    /// The libraries that called, sorted by name.
    QStringList libraries() const;
    /// With the longest time first.
    std::vector<OperationCount> operations() const;
    /// What was asked for, in the order in which that began. There may be very much of it; it keeps
    /// its place while calls are added.
    const std::vector<AskedCount>& askedInOrder() const { return m_asked; }
    /// What was asked for most comes first.
    std::vector<AskedCount> asked() const;

private:
    bool asks(const CallEntry& entry);
    void count(const CallEntry& entry);
    void count(const AskedFor& asked);

    TraceFile& m_file;
    HandleTable m_handles;
    std::vector<std::optional<bool>> m_asks;    ///< by the number of the operation's name
    QHash<qint64, OperationCount> m_operations; ///< by the numbers of manager and operation
    std::vector<AskedCount> m_asked;
    QHash<QString, std::size_t> m_askedPlaces;
    QSet<int> m_callers; ///< the numbers of their names
};

} // namespace trace
