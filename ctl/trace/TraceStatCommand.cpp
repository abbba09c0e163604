#include "ctl/trace/TraceStatCommand.h"

#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordingArgument.h"
#include "ctl/trace/RecordingColumns.h"
#include "trace/reading/CallText.h"
#include "trace/reading/CallWalk.h"
#include "trace/reading/Statistics.h"

#include <QHash>

#include <limits>

namespace {

constexpr int usualMost = 20;

using trace::AskedFor;
using trace::Statistics;

// Of a number that is given as 0 there are no bounds.
int most(const Arguments& arguments)
{
    if (!arguments.has("top"))
        return usualMost;
    bool isNumber = false;
    const int number = arguments.value("top").toInt(&isNumber);
    if (!isNumber || number < 0)
        throw Failure(ExitStatus::WrongUsage,
                      TraceStatCommand::tr("\"%1\" is no number.").arg(arguments.value("top")));
    return number == 0 ? std::numeric_limits<int>::max() : number;
}

QString kindName(AskedFor::Kind kind)
{
    switch (kind) {
    case AskedFor::Kind::Key: return QStringLiteral("key");
    case AskedFor::Kind::Value: return QStringLiteral("value");
    case AskedFor::Kind::Entry: return QStringLiteral("entry");
    case AskedFor::Kind::File: break;
    }
    return QStringLiteral("file");
}

// In nanoseconds, except for people.
QString time(qint64 nanoseconds, const Output& output)
{
    return output.form() == Output::Form::Table ? trace::CallText::time(nanoseconds)
                                                : QString::number(nanoseconds);
}

void printOperations(const Statistics& statistics, Output& output)
{
    for (const Statistics::OperationCount& count : statistics.operations())
        output.record({count.isFixed ? QStringLiteral("fixed") : QStringLiteral("operation"),
                       count.manager, count.operation, QString::number(count.calls),
                       QString::number(count.failures), QString::number(count.unreturned),
                       QString(), time(count.time, output), time(count.longest, output)},
                      count.unreturned > 0 ? Output::Tone::Bad : Output::Tone::Plain);
}

void printAsked(const Statistics& statistics, bool isAbsentOnly, int most, Output& output)
{
    QHash<QString, int> printed;
    for (const Statistics::AskedCount& count : statistics.asked()) {
        const QString kind = kindName(count.kind);
        if ((isAbsentOnly && count.absent == 0) || printed[kind]++ >= most)
            continue;
        output.record({kind, count.place, count.name, QString::number(count.asked), QString(),
                       QString(), QString::number(count.absent), QString(), QString()},
                      count.absent > 0 ? Output::Tone::Bad : Output::Tone::Plain);
    }
}

} // namespace

void TraceStatCommand::addOptions(QCommandLineParser& parser) const
{
    RecordingArgument::addFilterOptions(parser);
    parser.addOptions({
        {QStringLiteral("absent"), tr("Only what was asked for and was not there.")},
        {QStringLiteral("top"),
         tr("How many keys, values, entries and files are printed; otherwise 20 of each, and all "
            "for 0."),
         QStringLiteral("NUMBER")},
    });
}

// Each kind of row has columns of its own among those of all.
ExitStatus TraceStatCommand::run(const Arguments& arguments, Output& output)
{
    const int mostAsked = most(arguments);
    trace::CallFilter filter = RecordingArgument::filter(arguments);
    const bool isAbsentOnly = arguments.has("absent");
    const auto file = RecordingArgument::read(arguments.at(0), output);
    Statistics statistics(*file);
    trace::CallWalk walk(*file, [&](const trace::CallEntry& entry) {
        statistics.add(entry, filter.admits(*file, entry));
    });
    finish(walk);
    output.begin({Columns::kind, RecordingColumns::place, Columns::name, RecordingColumns::calls,
                  RecordingColumns::failures, RecordingColumns::unreturned,
                  RecordingColumns::absent, RecordingColumns::time, RecordingColumns::longest});
    if (!isAbsentOnly)
        printOperations(statistics, output);
    printAsked(statistics, isAbsentOnly, mostAsked, output);
    return ExitStatus::Done;
}
