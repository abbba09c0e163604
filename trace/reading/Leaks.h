#pragma once

#include "trace/reading/CallEntry.h"
#include "trace/reading/HandleTable.h"

#include <utility>
#include <vector>

namespace trace {

class TraceFile;

/// What a library was given and never gave back, with the calls that made it.
class Leaks
{
public:
    struct Leak
    {
        HandleTable::Entry handle;
        QString caller;
        QString operation;
    };

    /// The recording outlives this.
    explicit Leaks(TraceFile& file) : m_file(file) {}

    /// Takes over a call; all calls come in the order of entry.
    void add(const CallEntry& entry) { m_handles.follow(m_file, entry); }

    /// As `HandleTable::setListener`.
    void setListener(HandleTable::Listener listener) { m_handles.setListener(std::move(listener)); }

    /// In the order of the calls that made them.
    std::vector<Leak> all() const;

private:
    TraceFile& m_file;
    HandleTable m_handles;
};

} // namespace trace
