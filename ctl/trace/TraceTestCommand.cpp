#include "ctl/trace/TraceTestCommand.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordingColumns.h"
#include "ctl/trace/Replays.h"

#include <QDir>

namespace {

const char* outcomeOf(const replay::ReplayReport& report)
{
    if (report.hasCrashed())
        return "crashed";
    return report.isEqual() ? "equal" : "different";
}

// The first call that differs, for who looks into it.
QString firstOf(const replay::ReplayReport& report)
{
    if (report.hasCrashed())
        return QString::number(report.crashedIn);
    return report.different.empty() ? QString() : QString::number(report.different.front().number);
}

// One that cannot be read does not keep the others from being replayed.
ExitStatus test(const QString& path, Output& output)
{
    const QString name = QFileInfo(path).fileName();
    try {
        const auto source = Replays::open(path, output);
        const replay::ReplayReport report = Replays::run(*source);
        output.record({name, QLatin1String(outcomeOf(report)), QString::number(report.performed),
                       QString::number(report.different.size()),
                       QString::number(report.skippedCount()), firstOf(report)},
                      report.isEqual() ? Output::Tone::Good : Output::Tone::Bad);
        return report.isEqual() ? ExitStatus::Done : ExitStatus::No;
    } catch (const Failure& failure) {
        Interruption::check();
        output.note(failure.message());
        output.record({name, QStringLiteral("unreadable"), {}, {}, {}, {}}, Output::Tone::Bad);
        return ExitStatus::Failed;
    }
}

} // namespace

ExitStatus TraceTestCommand::run(const Arguments& arguments, Output& output)
{
    const QDir folder(arguments.at(0));
    const QStringList paths = replay::ReplaySource::findIn(folder.path());
    if (paths.isEmpty())
        throw Failure(tr("%1: there is no recording in this folder.").arg(folder.path()));
    output.begin({Columns::file, Columns::outcome, RecordingColumns::calls,
                  RecordingColumns::different, RecordingColumns::skipped, RecordingColumns::first});
    ExitStatus worst = ExitStatus::Done;
    for (const QString& path : paths)
        worst = qMax(worst, test(path, output));
    return worst;
}
