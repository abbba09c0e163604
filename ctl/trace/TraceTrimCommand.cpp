#include "ctl/trace/TraceTrimCommand.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordingArgument.h"
#include "inspection/OutputFile.h"
#include "trace/reading/CallWalk.h"
#include "trace/reading/Trimming.h"

namespace {

void put(const QByteArray& line, QIODevice& device)
{
    const QByteArray whole = line + '\n';
    if (device.write(whole) != whole.size())
        throw Failure(
            TraceTrimCommand::tr("The recording cannot be written: %1.").arg(device.errorString()));
}

// Lines stay as they are.
void write(trace::TraceFile& file, const std::vector<qint64>& numbers, QIODevice& device)
{
    for (const QByteArray& line : file.headLines())
        put(line, device);
    for (const qint64 number : numbers) {
        Interruption::check();
        const int index = file.indexOf(number);
        put(file.line(file.calls()[static_cast<std::size_t>(index)]), device);
    }
    if (!file.endLine().isEmpty())
        put(file.endLine(), device);
}

void writeFile(trace::TraceFile& file, const std::vector<qint64>& numbers, const QString& name)
{
    OutputFile result(name);
    bool isGood = result.open();
    if (isGood) {
        write(file, numbers, result.device());
        isGood = result.commit();
    }
    if (!isGood)
        throw Failure(TraceTrimCommand::tr("%1 cannot be written: %2.")
                          .arg(name, result.device().errorString()));
}

} // namespace

void TraceTrimCommand::addOptions(QCommandLineParser& parser) const
{
    RecordingArgument::addFilterOptions(parser);
}

// Without a file, or for "-", the recording is the output, and there is no document around it.
ExitStatus TraceTrimCommand::run(const Arguments& arguments, Output& output)
{
    const trace::CallFilter filter = RecordingArgument::filter(arguments);
    if (filter.isOpen())
        throw Failure(ExitStatus::WrongUsage, tr("Which calls? Name them by --calls."));
    const QString result = arguments.at(1);
    const bool isToOutput = result.isEmpty() || result == QLatin1String("-");
    if (isToOutput && output.form() == Output::Form::Json)
        throw Failure(ExitStatus::WrongUsage, tr("With --json, name a file to write."));
    const auto file = RecordingArgument::read(arguments.at(0), output);
    trace::Trimming trimming(*file, filter);
    trace::CallWalk walk(*file, [&](const trace::CallEntry& entry) { trimming.add(entry); });
    finish(walk);
    const std::vector<qint64> numbers = trimming.chosen();
    if (numbers.empty())
        return ExitStatus::No;
    if (isToOutput)
        write(*file, numbers, output.device());
    else
        writeFile(*file, numbers, result);
    output.note(tr("Kept: %L1 of %L2 calls, %L3 of them because others need them.")
                    .arg(numbers.size())
                    .arg(file->calls().size())
                    .arg(static_cast<qint64>(numbers.size()) - trimming.wantedCount()));
    return ExitStatus::Done;
}
