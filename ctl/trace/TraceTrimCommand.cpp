#include "ctl/trace/TraceTrimCommand.h"

#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordingArgument.h"
#include "ctl/trace/RecordingOutput.h"
#include "trace/reading/CallWalk.h"
#include "trace/reading/Trimming.h"

void TraceTrimCommand::addOptions(QCommandLineParser& parser) const
{
    RecordingArgument::addFilterOptions(parser);
}

ExitStatus TraceTrimCommand::run(const Arguments& arguments, Output& output)
{
    const trace::CallFilter filter = RecordingArgument::filter(arguments);
    if (filter.isOpen())
        throw Failure(ExitStatus::WrongUsage, tr("Which calls? Name them by --calls."));
    const QString result = arguments.at(1);
    RecordingOutput::check(result, output);
    const auto file = RecordingArgument::read(arguments.at(0), output);
    trace::Trimming trimming(*file, filter);
    trace::CallWalk walk(*file, [&](const trace::CallEntry& entry) { trimming.add(entry); });
    finish(walk);
    const std::vector<qint64> numbers = trimming.chosen();
    if (numbers.empty())
        return ExitStatus::No;
    RecordingOutput::write(*file, numbers, result, output);
    output.note(tr("Kept: %L1 of %L2 calls, %L3 of them because others need them.")
                    .arg(numbers.size())
                    .arg(file->calls().size())
                    .arg(static_cast<qint64>(numbers.size()) - trimming.wantedCount()));
    return ExitStatus::Done;
}
