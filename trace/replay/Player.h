#pragma once

#include "platform/IPlatformServices.h"
#include "trace/Operations.h"
#include "trace/reading/TraceFile.h"
#include "trace/replay/HandleMap.h"
#include "trace/replay/ReplayReport.h"

#include <QCoreApplication>

#include <QSet>

#include <functional>
#include <unordered_map>
#include <vector>

namespace replay {

class CallArguments;
class PerformedCall;
class ReplayFolder;

/// Performs the calls of a recording on services, and compares what they answer.
///
/// Calls are performed one after the other in the order in which they were entered, whatever thread
/// they came from; those that a procedure of the caller's made, when the service calls it here. A
/// procedure answers as it did in the recording. Everything about an operation is in its row.
class Player
{
    Q_DECLARE_TR_FUNCTIONS(Player)

public:
    /// Told before each call that is performed, so that it is known in which one a process ends.
    using Progress = std::function<void(qint64 number)>;
    using Selection = std::function<bool(const trace::CallEntry& call)>;

    /// All outlive this. The recording has been read, and is not read on meanwhile.
    Player(trace::TraceFile& file, IPlatformServices& services, ReplayFolder& folder);
    ~Player();

    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    /// The report gets the answer of the call with this number, as far as it is compared; nothing
    /// where it is not performed.
    void watch(qint64 number) { m_watched = number; }
    void setProgress(const Progress& progress) { m_progress = progress; }

    /// Performs the calls that are chosen, and with each those that are made from within it.
    void perform(const Selection& isChosen);

    const ReplayReport& report() const { return m_report; }

private:
    struct Enclosing; // an operation that is being performed, with the calls within

    static int procedure(const tagLOGFONTW* record, const tagTEXTMETRICW* metric, unsigned int type,
                         long callerValue);
    int answerProcedure(const std::uint64_t* words);
    int answerAs(const trace::Call& recorded, const std::uint64_t* words);

    void collectInner();
    const std::vector<int>& innerOf(qint64 number) const;
    const trace::CallEntry& entryAt(int index) const;
    void performAt(int index);
    SkipReason perform(const trace::CallEntry& entry);
    SkipReason perform(const trace::Call& call, const trace::Operation& operation,
                       trace::Interface interface);
    SkipReason reasonAgainst(const trace::Call& call);
    void enter(const trace::Call& call, Enclosing& enclosing);
    SkipReason finish(const trace::Call& call, const trace::Operation& operation,
                      const CallArguments& arguments, const PerformedCall& performed,
                      const Enclosing& enclosing);
    std::vector<Difference> compare(const trace::Call& call, const trace::Operation& operation,
                                    const CallArguments& arguments, const PerformedCall& performed);
    SkipReason doubt(const trace::Call& call, const trace::Operation& operation,
                     const QString& path, bool isDifferent) const;
    void skip(qint64 number, SkipReason reason);

    trace::TraceFile& m_file;
    IPlatformServices& m_services;
    ReplayFolder& m_folder;
    HandleMap m_handles;
    std::unordered_map<qint64, std::vector<int>> m_inner; ///< by the number of the enclosing call
    QSet<QString> m_gaps; ///< managers of which a change was not performed
    Enclosing* m_enclosing = nullptr;
    qint64 m_watched = 0;
    Progress m_progress = [](qint64 /*number*/) {};
    ReplayReport m_report;
};

} // namespace replay
