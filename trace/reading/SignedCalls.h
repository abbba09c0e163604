#pragma once

#include "trace/reading/CallAlignment.h"
#include "trace/reading/CallEntry.h"
#include "trace/reading/HandleTable.h"

#include <QHash>

#include <optional>
#include <vector>

namespace trace {

class TraceFile;

/// The calls of a recording with what a comparison needs: a signature each, and which calls made
/// the handles in it.
class SignedCalls
{
public:
    /// Numbers of names, shared by both recordings of a comparison.
    using Names = QHash<QString, int>;

    /// Both outlive this.
    SignedCalls(TraceFile& file, Names& names) : m_file(file), m_names(names) {}

    /// Takes over a call; all calls come in the order of entry.
    void add(const CallEntry& entry);

    const std::vector<CallAlignment::Signature>& signatures() const { return m_signatures; }
    TraceFile& file() const { return m_file; }
    /// The number of the call that made the handle which comes at this place among those of a call;
    /// 0 where none is known.
    qint64 maker(int call, int handle) const;

private:
    int number(const QString& name);
    QString handleText(const QString& handle);
    quint64 argumentsOf(const Call& call);
    void addOutputs(const Call& call);

    TraceFile& m_file;
    Names& m_names;
    HandleTable m_handles;
    std::vector<CallAlignment::Signature> m_signatures;
    std::vector<qint64> m_makers;           ///< of the handles of all calls
    std::vector<std::size_t> m_firstMakers; ///< of each call, among all
};

} // namespace trace
