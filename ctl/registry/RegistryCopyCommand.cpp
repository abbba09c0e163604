#include "ctl/registry/RegistryCopyCommand.h"

#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/registry/KeyArgument.h"
#include "ctl/registry/StoreChanges.h"
#include "inspection/registry/KeyMovePlanJob.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/TakenName.h"
#include "inspection/registry/UnkeptName.h"

namespace {

bool isBelow(const QString& path, const QString& key)
{
    return path == key || path.startsWith(key + QLatin1Char('/'));
}

} // namespace

void RegistryCopyCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOption(
        {QStringLiteral("dry-run"), tr("Names what would be copied, and does nothing.")});
}

ExitStatus RegistryCopyCommand::run(const Arguments& arguments, Output& output)
{
    const QString from = KeyArgument::existing(arguments.at(0));
    const QString to = KeyArgument::any(arguments.at(1));
    if (from.isEmpty() || to.isEmpty())
        throw Failure(tr("The root itself cannot be copied, and nothing can take its place."));
    const QString taken = takenKeyText(to);
    if (!taken.isEmpty())
        throw Failure(ExitStatus::No, taken);
    if (isBelow(to, from))
        throw Failure(tr("%1 is below the key that is to be copied.").arg(RegistryPath::shown(to)));
    const QString unkept = unkeptKeyText(RegistryPath::parent(to), RegistryPath::name(to));
    if (!unkept.isEmpty())
        throw Failure(ExitStatus::No, unkept);
    KeyMovePlanJob plan(from, to, KeyMovePlanJob::Original::Stays);
    finish(plan);
    StoreChange change = plan.takeChange();
    StoreChanges::print(change, output);
    if (!arguments.has("dry-run"))
        StoreChanges::apply(std::move(change), output);
    return ExitStatus::Done;
}
