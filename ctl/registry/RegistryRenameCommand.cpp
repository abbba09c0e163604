#include "ctl/registry/RegistryRenameCommand.h"

#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/registry/KeyArgument.h"
#include "ctl/registry/StoreChanges.h"
#include "inspection/registry/KeyMovePlanJob.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreEntry.h"
#include "inspection/registry/TakenName.h"
#include "inspection/registry/UnkeptName.h"
#include "inspection/registry/ValueInput.h"

namespace {

void refuse(ExitStatus status, const QString& problem)
{
    if (!problem.isEmpty())
        throw Failure(status, problem);
}

StoreChange keyChange(const QString& path, const QString& name)
{
    refuse(ExitStatus::WrongUsage, ValueInput::keyNameProblem(name));
    if (path.isEmpty())
        throw Failure(RegistryRenameCommand::tr("The root itself cannot be renamed."));
    refuse(ExitStatus::No, unkeptKeyText(RegistryPath::parent(path), name));
    const QString to = RegistryPath::join(RegistryPath::parent(path), name);
    refuse(ExitStatus::No, takenKeyText(to));
    KeyMovePlanJob plan(path, to);
    finish(plan);
    return plan.takeChange();
}

StoreChange valueChange(const QString& path, const QString& name, const QString& newName)
{
    refuse(ExitStatus::WrongUsage, ValueInput::nameProblem(newName));
    refuse(ExitStatus::No, unkeptValueText(path, newName));
    const QString from = StoreEntry::ofValue(path, name);
    const auto entry = StoreEntry::read(from);
    if (!entry || entry->isNull())
        throw Failure(ExitStatus::No, RegistryRenameCommand::tr("%1 has no value \"%2\".")
                                          .arg(RegistryPath::shown(path), name));
    refuse(ExitStatus::No, takenValueText(path, newName));
    return {{from, entry, std::nullopt}, {StoreEntry::ofValue(path, newName), std::nullopt, entry}};
}

} // namespace

void RegistryRenameCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOption(
        {QStringLiteral("dry-run"), tr("Names what would be renamed, and does nothing.")});
}

ExitStatus RegistryRenameCommand::run(const Arguments& arguments, Output& output)
{
    const QString path = KeyArgument::existing(arguments.at(0));
    StoreChange change = arguments.count() == 2
                             ? keyChange(path, arguments.at(1))
                             : valueChange(path, arguments.at(1), arguments.at(2));
    StoreChanges::print(change, output);
    if (!arguments.has("dry-run"))
        StoreChanges::apply(std::move(change), output);
    return ExitStatus::Done;
}
