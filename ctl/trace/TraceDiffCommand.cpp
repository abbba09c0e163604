#include "ctl/trace/TraceDiffCommand.h"

#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordingArgument.h"
#include "ctl/trace/RecordingColumns.h"
#include "trace/reading/CallText.h"
#include "trace/reading/HandleTable.h"
#include "trace/reading/TraceDifference.h"

namespace {

using Kind = trace::TraceDifference::Kind;
using Row = trace::TraceDifference::Row;

QString numberText(qint64 number)
{
    return number > 0 ? QString::number(number) : QString();
}

const trace::CallEntry& entryOf(const trace::TraceFile& file, qint64 number)
{
    return file.calls()[static_cast<std::size_t>(file.indexOf(number))];
}

// Of a call that only one of the recordings has.
QString argumentsOf(trace::TraceFile& file, qint64 number)
{
    const trace::HandleTable noHandles;
    const trace::CallEntry& entry = entryOf(file, number);
    const std::optional<trace::Call> call = file.call(entry);
    return call ? trace::CallText(noHandles).arguments(*call, file.operation(entry)) : QString();
}

void print(const Row& row, trace::TraceFile& before, trace::TraceFile& after, Output& output)
{
    const bool isAdded = row.kind == Kind::Added;
    const bool isRemoved = row.kind == Kind::Removed;
    const trace::TraceFile& file = isAdded ? after : before;
    const trace::CallEntry& entry = entryOf(file, isAdded ? row.after : row.before);
    const QString change = isAdded     ? QStringLiteral("added")
                           : isRemoved ? QStringLiteral("removed")
                                       : QStringLiteral("changed");
    const Output::Tone tone = isAdded     ? Output::Tone::Good
                              : isRemoved ? Output::Tone::Bad
                                          : Output::Tone::Plain;
    output.record({change, numberText(row.before), numberText(row.after), file.name(entry.caller),
                   file.name(entry.operation), row.part,
                   isRemoved ? argumentsOf(before, row.before) : row.was,
                   isAdded ? argumentsOf(after, row.after) : row.is},
                  tone);
}

} // namespace

void TraceDiffCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOption({QStringLiteral("first"), tr("Prints the first difference alone.")});
}

ExitStatus TraceDiffCommand::run(const Arguments& arguments, Output& output)
{
    const auto before = RecordingArgument::read(arguments.at(0), output);
    const auto after = RecordingArgument::read(arguments.at(1), output);
    trace::TraceDifference difference(*before, *after);
    finish(difference);
    output.begin({Columns::change, RecordingColumns::call, RecordingColumns::second,
                  RecordingColumns::caller, RecordingColumns::operation, RecordingColumns::part,
                  Columns::before, Columns::after});
    for (const Row& row : difference.rows()) {
        print(row, *before, *after, output);
        if (arguments.has("first"))
            break;
    }
    return difference.rows().empty() ? ExitStatus::Done : ExitStatus::No;
}
