#include "ctl/trace/TraceReplayCommand.h"

#include "ctl/Failure.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordingColumns.h"
#include "ctl/trace/Replays.h"
#include "trace/replay/SkipReason.h"

namespace {

// The texts at the beginning of a record.
QStringList placeOf(const char* outcome, qint64 number, const trace::TraceFile& file)
{
    const int index = file.indexOf(number);
    const trace::CallEntry entry =
        index < 0 ? trace::CallEntry() : file.calls()[static_cast<std::size_t>(index)];
    return {QLatin1String(outcome), QString::number(number), file.name(entry.caller),
            file.name(entry.operation)};
}

void printDifferent(const replay::ReplayReport::DifferentCall& call, const trace::TraceFile& file,
                    Output& output)
{
    for (const replay::Difference& difference : call.differences)
        output.record(placeOf("different", call.number, file) +
                          QStringList{difference.part, difference.was, difference.is},
                      Output::Tone::Bad);
}

void printSkipped(const replay::ReplayReport& report, const trace::TraceFile& file, Output& output)
{
    for (const replay::ReplayReport::SkippedCall& call : report.skipped)
        output.record(placeOf("skipped", call.number, file) +
                      QStringList{{}, replay::SkipReasonText::of(call.reason), {}});
}

} // namespace

void TraceReplayCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOptions({
        {QStringLiteral("first"), tr("Prints the first call that differs alone.")},
        {QStringLiteral("skipped"), tr("Lists the calls that cannot be performed, and why.")},
    });
}

ExitStatus TraceReplayCommand::run(const Arguments& arguments, Output& output)
{
    const auto source = Replays::open(arguments.at(0), output);
    const replay::ReplayReport report = Replays::run(*source);
    const trace::TraceFile& file = source->file();
    output.begin({Columns::outcome, RecordingColumns::call, RecordingColumns::caller,
                  RecordingColumns::operation, RecordingColumns::part, Columns::before,
                  Columns::after});
    for (const replay::ReplayReport::DifferentCall& call : report.different) {
        printDifferent(call, file, output);
        if (arguments.has("first"))
            break;
    }
    if (report.hasCrashed())
        output.record(placeOf("crashed", report.crashedIn, file) +
                          QStringList{{}, {}, Replays::signalText(report.signal)},
                      Output::Tone::Bad);
    if (arguments.has("skipped"))
        printSkipped(report, file, output);
    output.note(Replays::summary(report));
    return report.isEqual() ? ExitStatus::Done : ExitStatus::No;
}
