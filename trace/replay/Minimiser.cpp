#include "trace/replay/Minimiser.h"

#include "trace/reading/Trimming.h"
#include "trace/replay/DeltaDebugging.h"
#include "trace/replay/ReplayFolder.h"
#include "trace/replay/ReplaySource.h"

#include <algorithm>

namespace replay {

namespace {

const trace::CallEntry& entryOf(const trace::TraceFile& file, qint64 number)
{
    return file.calls()[static_cast<std::size_t>(file.indexOf(number))];
}

} // namespace

Minimiser::Minimiser(const ReplaySource& source, qint64 call) : m_source(source), m_call(call) {}

bool Minimiser::fail(const QString& error)
{
    if (m_error.isEmpty())
        m_error = error;
    return false;
}

bool Minimiser::run()
{
    const trace::TraceFile& file = m_source.file();
    if (file.indexOf(m_call) < 0 || entryOf(file, m_call).isCallback)
        return fail(tr("There is no call %1 of a service.").arg(m_call));
    m_outermost = outermostOf(m_call);
    if (!takeAnswer())
        return false;
    const auto hasSameAnswer = [this](const Numbers& numbers) {
        return answerAfter(numbers) == m_answer;
    };
    // Mostly what made the handles is enough, or nearly so.
    const Numbers few = needed();
    const Numbers all = before();
    const bool areEnough = few.size() < all.size() && hasSameAnswer(few);
    m_kept = DeltaDebugging(hasSameAnswer).shrink(areEnough ? few : all);
    return m_error.isEmpty();
}

qint64 Minimiser::outermostOf(qint64 number) const
{
    const trace::TraceFile& file = m_source.file();
    while (file.indexOf(entryOf(file, number).enclosing) >= 0)
        number = entryOf(file, number).enclosing;
    return number;
}

// Later calls do not matter to the answer.
Minimiser::Numbers Minimiser::before() const
{
    const trace::TraceFile& file = m_source.file();
    Numbers numbers;
    for (const trace::CallEntry& entry : file.calls()) {
        if (entry.number < m_outermost && file.indexOf(entry.enclosing) < 0)
            numbers.push_back(entry.number);
    }
    return numbers;
}

// The calls that made the handles, and those that made the handles of these.
Minimiser::Numbers Minimiser::needed() const
{
    trace::CallFilter filter;
    filter.add(QString::number(m_call));
    trace::Trimming trimming(m_source.file(), filter);
    for (const trace::CallEntry& entry : m_source.file().calls())
        trimming.add(entry);
    const Numbers chosen = trimming.chosen();
    Numbers numbers;
    for (const qint64 number : before()) {
        if (std::binary_search(chosen.begin(), chosen.end(), number))
            numbers.push_back(number);
    }
    return numbers;
}

bool Minimiser::takeAnswer()
{
    m_answer = answerAfter(before());
    if (!m_answer.isNull())
        return true;
    if (m_report.hasCrashed())
        return fail(tr("The services crash before it, in call %1.").arg(m_report.crashedIn));
    const auto found = std::find_if(
        m_report.skipped.begin(), m_report.skipped.end(),
        [this](const ReplayReport::SkippedCall& call) { return call.number == m_call; });
    const SkipReason reason = found == m_report.skipped.end() ? SkipReason::None : found->reason;
    return fail(tr("Call %1 cannot be performed. %2").arg(m_call).arg(SkipReasonText::of(reason)));
}

// Null where it gets none.
QString Minimiser::answerAfter(const Numbers& numbers)
{
    const auto folder = m_source.makeFolder();
    ReplayProcess process(m_source.file(), *folder);
    if (m_makeServices)
        process.setServices(m_makeServices);
    if (m_pause)
        process.setPause(m_pause);
    process.watch(m_call);
    process.setSelection([&numbers, this](const trace::CallEntry& entry) {
        return entry.number == m_outermost ||
               std::binary_search(numbers.begin(), numbers.end(), entry.number);
    });
    ++m_replays;
    if (!process.run()) {
        fail(process.error());
        return {};
    }
    m_report = process.report();
    return m_report.crashedIn == m_call ? QStringLiteral("crash %1").arg(m_report.signal)
                                        : m_report.watchedAnswer;
}

std::vector<qint64> Minimiser::calls() const
{
    QSet<qint64> kept(m_kept.begin(), m_kept.end());
    kept.insert(m_outermost);
    std::vector<qint64> numbers;
    for (const trace::CallEntry& entry : m_source.file().calls()) {
        if (kept.contains(entry.enclosing))
            kept.insert(entry.number);
        if (kept.contains(entry.number))
            numbers.push_back(entry.number);
    }
    return numbers;
}

} // namespace replay
