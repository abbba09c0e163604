#include "ctl/registry/RegistryCheckCommand.h"

#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/Store.h"
#include "ctl/registry/KeyArgument.h"
#include "inspection/registry/RegistryCheckJob.h"
#include "inspection/registry/RegistryPath.h"

ExitStatus RegistryCheckCommand::run(const Arguments& arguments, Output& output)
{
    RegistryCheckJob job(KeyArgument::existing(arguments.at(0)));
    finish(job);
    output.begin({Columns::kind, Columns::key, Columns::name, Columns::stored, Columns::remark});
    const QString damage = Store::damage();
    if (!damage.isEmpty())
        output.record({QStringLiteral("damaged"), {}, {}, {}, damage}, Output::Tone::Bad);
    for (const RegistryCheckJob::Finding& finding : job.findings())
        output.record(
            {finding.isReadable ? QStringLiteral("altered") : QStringLiteral("unreadable"),
             RegistryPath::shown(finding.path), finding.name, finding.raw, finding.reason},
            finding.isReadable ? Output::Tone::Plain : Output::Tone::Bad);
    return damage.isEmpty() && job.findings().empty() ? ExitStatus::Done : ExitStatus::No;
}
