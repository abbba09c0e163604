#include "ctl/trace/TraceMinimiseCommand.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordingOutput.h"
#include "ctl/trace/Replays.h"
#include "trace/replay/Minimiser.h"

void TraceMinimiseCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOption({QStringLiteral("call"), tr("The number of the call that is to be kept."),
                      QStringLiteral("NUMBER")});
}

ExitStatus TraceMinimiseCommand::run(const Arguments& arguments, Output& output)
{
    bool isNumber = false;
    const qint64 call = arguments.value("call").toLongLong(&isNumber);
    if (!isNumber || call <= 0)
        throw Failure(ExitStatus::WrongUsage, tr("Which call? Name its number by --call."));
    RecordingOutput::check(arguments.at(1), output);
    const auto source = Replays::open(arguments.at(0), output);
    replay::Minimiser minimiser(*source, call);
    minimiser.setPause(Interruption::check);
    if (!minimiser.run())
        throw Failure(minimiser.error());
    RecordingOutput::write(source->file(), minimiser.calls(), arguments.at(1), output);
    output.note(tr("Kept: %L1 of %L2 calls, after %L3 replays.")
                    .arg(minimiser.calls().size())
                    .arg(source->file().calls().size())
                    .arg(minimiser.replayCount()));
    return ExitStatus::Done;
}
