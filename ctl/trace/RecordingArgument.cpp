#include "ctl/trace/RecordingArgument.h"

#include "ctl/Arguments.h"
#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "trace/bundle/Bundle.h"
#include "trace/reading/TraceReadingJob.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>

namespace {

constexpr std::size_t mostFaultsTold = 5;
constexpr unsigned long pause = 100; // milliseconds between two looks at an empty file

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(RecordingArgument)
};

void tellFaults(const QString& name, const trace::TraceFile& file, const Output& output)
{
    const QString prefix = name + QLatin1String(": ");
    const std::vector<trace::TraceFault> faults = file.faults();
    for (std::size_t i = 0; i < faults.size() && i < mostFaultsTold; ++i)
        output.note(prefix + faults[i].text());
    const qint64 rest = file.faultCount() - static_cast<qint64>(mostFaultsTold);
    if (rest > 0)
        output.note(prefix + Texts::tr("%L1 more lines cannot be read.").arg(rest));
}

} // namespace

// What a bundle is unpacked into goes away with it: the recording has been opened by then.
std::unique_ptr<trace::TraceFile> RecordingArgument::read(const QString& file, const Output& output)
{
    trace::Bundle bundle(file);
    if (!bundle.open(Interruption::check))
        throw Failure(bundle.error());
    auto recording = std::make_unique<trace::TraceFile>(bundle.recording());
    if (!recording->open())
        throw Failure(QString(recording->error()).replace(bundle.recording(), file));
    trace::TraceReadingJob job(*recording);
    finish(job);
    tellFaults(file, *recording, output);
    return recording;
}

std::unique_ptr<trace::TraceFile> RecordingArgument::await(const QString& file)
{
    const auto isEmpty = [&file] {
        const QFileInfo info(file);
        return info.isFile() && info.size() == 0;
    };
    while (isEmpty()) {
        if (Interruption::isAsked())
            return nullptr;
        QThread::msleep(pause);
    }
    auto recording = std::make_unique<trace::TraceFile>(file);
    if (!recording->open())
        throw Failure(recording->error());
    return recording;
}

void RecordingArgument::addFilterOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {QStringLiteral("calls"),
         Texts::tr("Only these calls: 10-20,op:NAME,caller:TEXT,manager:NAME,thread:NUMBER."),
         QStringLiteral("SET")},
        {QStringLiteral("failures"), Texts::tr("Only calls that failed or never returned.")},
    });
}

trace::CallFilter RecordingArgument::filter(const Arguments& arguments)
{
    trace::CallFilter filter;
    if (arguments.has("calls") && !filter.add(arguments.value("calls")))
        throw Failure(ExitStatus::WrongUsage, filter.fault());
    filter.setFailuresOnly(arguments.has("failures"));
    return filter;
}
