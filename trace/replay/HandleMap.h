#pragma once

#include "trace/operations/Operation.h"

#include <QHash>
#include <QPair>
#include <QString>

#include <cstdint>

namespace replay {

/// Which handle of the replay stands for which one of the recording.
class HandleMap
{
public:
    enum class State
    {
        Unknown, ///< nothing in the recording has made it
        Missing, ///< the call that made it has not made one here
        Alive,
        Ended ///< given back
    };
    struct Entry
    {
        State state = State::Unknown;
        std::uint64_t word = 0; ///< of one that lives
    };

    /// Handles go by the role that they have and by the text of the recording.
    Entry find(trace::Role role, const QString& handle) const;
    void add(trace::Role role, const QString& handle, std::uint64_t word);
    /// The call that made it there has not made one here.
    void miss(trace::Role role, const QString& handle);
    void end(trace::Role role, const QString& handle);

private:
    using Key = QPair<int, QString>;

    static Key keyOf(trace::Role role, const QString& handle);

    QHash<Key, Entry> m_entries;
};

} // namespace replay
