#include "trace/replay/Player.h"

#include "trace/operations/FontOperations.h"
#include "trace/reading/KnownOperation.h"
#include "trace/replay/AnswerComparison.h"
#include "trace/replay/BufferSize.h"
#include "trace/replay/CallArguments.h"
#include "trace/replay/HandleLearning.h"
#include "trace/replay/PerformedCall.h"
#include "trace/replay/RecordedForm.h"
#include "trace/replay/ReplayFolder.h"
#include "trace/replay/Surroundings.h"

#include <algorithm>

namespace replay {

namespace {

using trace::Role;

// The procedure has no room in its arguments for whom it belongs to.
Player* g_player = nullptr;

} // namespace

struct Player::Enclosing
{
    std::vector<int> procedures; ///< places of the calls of the caller's procedure
    std::size_t called = 0;      ///< how often it has been called here
    std::vector<Difference> differences;
    Enclosing* outer = nullptr;
};

Player::Player(trace::TraceFile& file, IPlatformServices& services, ReplayFolder& folder)
    : m_file(file), m_services(services), m_folder(folder)
{
    RecordedForm::prepare();
    collectInner();
    g_player = this;
}

Player::~Player()
{
    g_player = nullptr;
}

void Player::collectInner()
{
    const std::vector<trace::CallEntry>& calls = m_file.calls();
    for (std::size_t i = 0; i < calls.size(); ++i) {
        if (calls[i].enclosing > 0)
            m_inner[calls[i].enclosing].push_back(static_cast<int>(i));
    }
}

const std::vector<int>& Player::innerOf(qint64 number) const
{
    static const std::vector<int> none;
    const auto found = m_inner.find(number);
    return found == m_inner.end() ? none : found->second;
}

const trace::CallEntry& Player::entryAt(int index) const
{
    return m_file.calls()[static_cast<std::size_t>(index)];
}

void Player::perform(const Selection& isChosen)
{
    const WorkingDirectory directory(m_folder.directory());
    const std::vector<trace::CallEntry>& calls = m_file.calls();
    for (std::size_t i = 0; i < calls.size(); ++i) {
        const bool isOutermost = m_file.indexOf(calls[i].enclosing) < 0;
        if (isOutermost && isChosen(calls[i]))
            performAt(static_cast<int>(i));
    }
}

void Player::performAt(int index)
{
    const trace::CallEntry& entry = entryAt(index);
    const SkipReason reason = perform(entry);
    if (reason != SkipReason::None)
        skip(entry.number, reason);
}

// With all that was called from within it.
void Player::skip(qint64 number, SkipReason reason)
{
    m_report.skipped.push_back({number, reason});
    const trace::CallEntry& entry = entryAt(m_file.indexOf(number));
    const trace::Operation* const operation = m_file.operation(entry);
    if (operation && reason != SkipReason::Inner && Surroundings::isChanging(*operation))
        m_gaps.insert(m_file.name(entry.manager));
    for (const int inner : innerOf(number))
        skip(entryAt(inner).number, reason);
}

SkipReason Player::perform(const trace::CallEntry& entry)
{
    const trace::Operation* const operation = m_file.operation(entry);
    const trace::Manager* const manager =
        trace::findManager(m_file.name(entry.manager).toStdString());
    const std::optional<trace::Call> call = m_file.call(entry);
    if (!operation || !manager || !call || entry.isCallback || operation->isDestructor)
        return SkipReason::UnknownOperation;
    const SkipReason reason = reasonAgainst(*call);
    const auto place = manager - trace::managers().begin();
    return reason == SkipReason::None
               ? perform(*call, *operation, static_cast<trace::Interface>(place))
               : reason;
}

// What the caller's procedure did is only known where it returned.
SkipReason Player::reasonAgainst(const trace::Call& call)
{
    if (!call.hasReturned())
        return SkipReason::NeverReturned;
    if (call.result.isAbsent())
        return SkipReason::LeftOtherwise;
    const std::vector<int>& inner = innerOf(call.number);
    const bool haveAllReturned = std::all_of(inner.begin(), inner.end(), [this](int place) {
        const trace::CallEntry& entry = entryAt(place);
        const std::optional<trace::Call> within = m_file.call(entry);
        return !entry.isCallback || (within && !within->result.isAbsent());
    });
    return haveAllReturned ? SkipReason::None : SkipReason::LeftOtherwise;
}

SkipReason Player::perform(const trace::Call& call, const trace::Operation& operation,
                           trace::Interface interface)
{
    const CallArguments arguments(operation, call, m_handles, m_folder,
                                  reinterpret_cast<std::uint64_t>(&procedure));
    if (arguments.fault() != SkipReason::None)
        return arguments.fault();
    void* const manager = managerOf(m_services, interface);
    if (!manager)
        return SkipReason::NoManager;
    const bool hasSucceeded = !trace::KnownOperation::isFailure(operation, call.result);
    if (Surroundings::isWriting(operation) && hasSucceeded)
        m_folder.makeFolderOf(arguments.path());
    m_progress(call.number);
    Enclosing enclosing;
    enter(call, enclosing);
    const PerformedCall performed(interface, operation, manager, arguments.words());
    m_enclosing = enclosing.outer;
    return finish(call, operation, arguments, performed, enclosing);
}

void Player::enter(const trace::Call& call, Enclosing& enclosing)
{
    for (const int inner : innerOf(call.number)) {
        if (entryAt(inner).isCallback)
            enclosing.procedures.push_back(inner);
        else
            skip(entryAt(inner).number, SkipReason::Inner);
    }
    enclosing.outer = m_enclosing;
    m_enclosing = &enclosing;
}

// Why an answer says nothing about the service: nobody knows what it was to find. A search in a
// folder of which nothing is known finds something else sooner or later.
SkipReason Player::doubt(const trace::Call& call, const trace::Operation& operation,
                         const QString& path, bool isDifferent) const
{
    const bool isSearch = operation.result.role == Role::SearchHandle &&
                          !trace::KnownOperation::isFailure(operation, call.result);
    if (!path.isNull() && !m_folder.isKnown(path))
        return isDifferent || isSearch ? SkipReason::UnknownPath : SkipReason::None;
    return isDifferent && m_gaps.contains(call.manager) ? SkipReason::AfterGap : SkipReason::None;
}

SkipReason Player::finish(const trace::Call& call, const trace::Operation& operation,
                          const CallArguments& arguments, const PerformedCall& performed,
                          const Enclosing& enclosing)
{
    std::vector<Difference> differences = compare(call, operation, arguments, performed);
    differences.insert(differences.end(), enclosing.differences.begin(),
                       enclosing.differences.end());
    if (enclosing.called != enclosing.procedures.size())
        differences.push_back({tr("(procedure)"),
                               tr("called %1 times").arg(enclosing.procedures.size()),
                               tr("called %1 times").arg(enclosing.called)});
    const SkipReason doubtful = doubt(call, operation, arguments.path(), !differences.empty());
    const HandleLearning handles(operation, call, arguments.words(), performed.resultWord());
    if (doubtful == SkipReason::None)
        handles.apply(m_handles);
    else
        handles.applyMissing(m_handles);
    if (Surroundings::isWriting(operation))
        m_folder.setKnown(arguments.path());
    if (doubtful != SkipReason::None)
        return doubtful;
    ++m_report.performed;
    if (!differences.empty())
        m_report.different.push_back({call.number, differences});
    return SkipReason::None;
}

std::vector<Difference> Player::compare(const trace::Call& call, const trace::Operation& operation,
                                        const CallArguments& arguments,
                                        const PerformedCall& performed)
{
    AnswerComparison comparison(operation, m_folder);
    comparison.compareResult(call.result, performed.result());
    comparison.compareOutputs(call.outputs, performed.outputs());
    if (!HandleLearning(operation, call, arguments.words(), performed.resultWord())
             .isSameHandedBack())
        comparison.add({tr("(handle)"), tr("the one that was given"), tr("another one")});
    const QStringList overruns = arguments.overruns();
    for (const QString& name : overruns)
        comparison.add({name, {}, tr("written beyond the buffer")});
    if (call.number == m_watched)
        m_report.watchedAnswer = comparison.answerText(performed.result(), performed.outputs()) +
                                 overruns.join(QLatin1Char(' '));
    return comparison.differences();
}

int Player::procedure(const tagLOGFONTW* record, const tagTEXTMETRICW* metric, unsigned int type,
                      long callerValue)
{
    const std::uint64_t words[] = {reinterpret_cast<std::uint64_t>(record),
                                   reinterpret_cast<std::uint64_t>(metric), type,
                                   static_cast<std::uint64_t>(callerValue)};
    return g_player->answerProcedure(words);
}

// One call more than was recorded ends what calls it.
int Player::answerProcedure(const std::uint64_t* words)
{
    const std::size_t place = m_enclosing->called++;
    if (place >= m_enclosing->procedures.size())
        return 1;
    const std::optional<trace::Call> recorded =
        m_file.call(entryAt(m_enclosing->procedures[place]));
    return recorded ? answerAs(*recorded, words) : 1;
}

int Player::answerAs(const trace::Call& recorded, const std::uint64_t* words)
{
    AnswerComparison comparison(trace::enumProcedure, m_folder);
    comparison.compareArguments(
        recorded.arguments, RecordedForm::argumentsOf(trace::enumProcedure, words), "(procedure).");
    Enclosing* const enclosing = m_enclosing;
    enclosing->differences.insert(enclosing->differences.end(), comparison.differences().begin(),
                                  comparison.differences().end());
    ++m_report.performed;
    for (const int inner : innerOf(recorded.number))
        performAt(inner);
    return static_cast<int>(numberIn(recorded.result));
}

} // namespace replay
