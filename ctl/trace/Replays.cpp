#include "ctl/trace/Replays.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/trace/RecordingArgument.h"
#include "trace/replay/ReplayFolder.h"

#include <QCoreApplication>

#include <cstring>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Replays)
};

} // namespace

std::unique_ptr<replay::ReplaySource> Replays::open(const QString& path, const Output& output)
{
    auto source = std::make_unique<replay::ReplaySource>(path);
    if (!source->open(Interruption::check))
        throw Failure(source->error());
    RecordingArgument::tellFaults(path, source->file(), output);
    return source;
}

replay::ReplayReport Replays::run(const replay::ReplaySource& source)
{
    const auto folder = source.makeFolder();
    replay::ReplayProcess process(source.file(), *folder);
    process.setPause(Interruption::check);
    if (!process.run())
        throw Failure(process.error());
    return process.report();
}

QString Replays::summary(const replay::ReplayReport& report)
{
    if (report.hasCrashed())
        return Texts::tr("The services have crashed in call %1: %2.")
            .arg(report.crashedIn)
            .arg(signalText(report.signal));
    return Texts::tr("Performed: %L1 calls, %L2 of them differ. Not performed: %L3.")
        .arg(report.performed)
        .arg(report.different.size())
        .arg(report.skippedCount());
}

QString Replays::signalText(int number)
{
    return QString::fromLocal8Bit(strsignal(number));
}
