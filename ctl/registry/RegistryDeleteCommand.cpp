#include "ctl/registry/RegistryDeleteCommand.h"

#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/registry/KeyArgument.h"
#include "ctl/registry/MadeStatement.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/RegistryWalk.h"
#include "inspection/registry/RemovalText.h"
#include "inspection/registry/StoreEntry.h"

namespace {

RegFileEntry statementOf(const QString& path, const QString& name)
{
    RegFileEntry entry;
    entry.action =
        name.isNull() ? RegFileEntry::Action::DeleteKey : RegFileEntry::Action::DeleteValue;
    entry.key = RegistryPath::shown(path);
    entry.name = name;
    return entry;
}

// Every key and every value below, with the key itself.
void printTree(const QString& path, Output& output)
{
    RegistryWalk walk(path);
    for (auto step = walk.next(); step != RegistryWalk::Step::End; step = walk.next()) {
        const bool isKey = step == RegistryWalk::Step::Key;
        output.record({isKey ? QStringLiteral("key") : QStringLiteral("value"),
                       RegistryPath::shown(walk.path()), isKey ? QString() : walk.name()},
                      Output::Tone::Bad);
    }
}

void refuseContents(const QString& path)
{
    RegistryCountJob count(path);
    finish(count);
    throw Failure(ExitStatus::No,
                  RegistryDeleteCommand::tr("%1 is not empty. %2 Use -r to delete all of it.")
                      .arg(RegistryPath::shown(path), RemovalText::ofKey(path, count)));
}

// The group in the store that goes with what is deleted.
QString groupOf(const QString& path, const QString& name)
{
    return name.isNull() ? path : StoreEntry::deletedWithValue(path, name);
}

// A value of a key; directly under a root it is kept in a key of its own name.
bool hasValue(const QString& path, const QString& name)
{
    return !rawRegistryEntry(StoreEntry::deletedWithValue(path, name)).isNull() ||
           (path.isEmpty() && isRegistryGroup(name));
}

} // namespace

void RegistryDeleteCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOptions(
        {{{QStringLiteral("r"), QStringLiteral("recursive")}, tr("A key with everything in it.")},
         {QStringLiteral("dry-run"), tr("Names what would go, and deletes nothing.")}});
}

ExitStatus RegistryDeleteCommand::run(const Arguments& arguments, Output& output)
{
    const QString path = KeyArgument::existing(arguments.at(0));
    const QString name = arguments.at(1);
    if (!name.isNull() && !hasValue(path, name))
        throw Failure(ExitStatus::No,
                      tr("%1 has no value \"%2\".").arg(RegistryPath::shown(path), name));
    const auto plan = MadeStatement::planOf(statementOf(path, name));
    if (plan->statements().front().outcome == ImportPlan::Outcome::Refused)
        throw Failure(plan->statements().front().remark);
    const QString group = groupOf(path, name);
    if (isRegistryGroup(group) && !arguments.has("recursive"))
        refuseContents(group);
    output.begin({Columns::kind, Columns::key, Columns::name});
    if (!name.isNull())
        output.record({QStringLiteral("value"), RegistryPath::shown(path), name},
                      Output::Tone::Bad);
    if (isRegistryKey(group))
        printTree(group, output);
    if (!arguments.has("dry-run"))
        MadeStatement::apply(plan, output);
    return ExitStatus::Done;
}
