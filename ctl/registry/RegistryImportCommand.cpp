#include "ctl/registry/RegistryImportCommand.h"

#include "ctl/Failure.h"
#include "ctl/InputDevice.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/Store.h"
#include "ctl/registry/KeyArgument.h"
#include "ctl/registry/MadeStatement.h"
#include "inspection/OutputFile.h"
#include "inspection/registry/ImportText.h"
#include "inspection/registry/RawStore.h"
#include "inspection/registry/RegistryImportJob.h"

#include <QFile>
#include <QTextCodec>

namespace {

using Outcome = ImportPlan::Outcome;

// Empty for that of the system.
QByteArray codePageOf(const Arguments& arguments)
{
    const QString name = arguments.value("code-page");
    if (arguments.has("code-page") && !QTextCodec::codecForName(name.toLatin1()))
        throw Failure(ExitStatus::WrongUsage,
                      RegistryImportCommand::tr("There is no code page \"%1\".").arg(name));
    return name.toLatin1();
}

std::shared_ptr<const ImportPlan> planOf(const Arguments& arguments)
{
    const QString prefix =
        arguments.has("prefix") ? KeyArgument::any(arguments.value("prefix")) : QString();
    RegistryImportJob job(std::make_unique<InputDevice>(arguments.at(0)), codePageOf(arguments),
                          prefix);
    finish(job);
    if (!job.error().isEmpty())
        throw Failure(RegistryImportCommand::tr("%1: %2").arg(arguments.at(0), job.error()));
    if (job.reader().isVersion4() && !job.reader().isOfCodePage())
        throw Failure(ExitStatus::No,
                      RegistryImportCommand::tr("%1 has bytes that are none of the code page %2.")
                          .arg(arguments.at(0), QString::fromLatin1(job.reader().codePage())));
    return job.plan();
}

Output::Tone toneOf(Outcome outcome)
{
    return outcome == Outcome::Refused ? Output::Tone::Bad : Output::Tone::Plain;
}

void print(const ImportPlan& plan, Output& output)
{
    output.begin({Columns::line, Columns::key, Columns::name, Columns::before, Columns::after,
                  Columns::outcome});
    for (const ImportPlan::Statement& statement : plan.statements()) {
        const RegFileEntry& entry = statement.entry;
        output.record({QString::number(entry.line), entry.key, entry.name, statement.before,
                       ImportText::data(entry), ImportText::outcome(statement)},
                      toneOf(statement.outcome));
    }
}

// The store's file byte for byte, as it is before the import; of a store that has no file yet an
// empty one. Putting it in the store's place brings everything back.
void backUp(const QString& name)
{
    QFile store(RawStore::fileName());
    OutputFile copy(name);
    const bool isRead = !store.exists() || store.open(QIODevice::ReadOnly);
    const QByteArray bytes = store.isOpen() ? store.readAll() : QByteArray();
    if (!isRead || store.error() != QFileDevice::NoError || !copy.open() ||
        copy.device().write(bytes) != bytes.size() || !copy.commit())
        throw Failure(RegistryImportCommand::tr("%1 cannot be written: %2")
                          .arg(name, isRead ? copy.device().errorString() : store.errorString()));
}

} // namespace

void RegistryImportCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOptions(
        {{QStringLiteral("dry-run"),
          tr("Prints what becomes of each statement, and does nothing.")},
         {QStringLiteral("prefix"), tr("Takes all keys of the file to be below this one."),
          QStringLiteral("KEY")},
         {QStringLiteral("code-page"), tr("The code page of a file of version 4."),
          QStringLiteral("NAME")},
         {QStringLiteral("backup"), tr("Copies the store's file there first."),
          QStringLiteral("FILE")}});
}

ExitStatus RegistryImportCommand::run(const Arguments& arguments, Output& output)
{
    if (arguments.has("backup"))
        Store::refuseOwnFile(arguments.value("backup"));
    const auto plan = planOf(arguments);
    if (arguments.has("dry-run")) {
        print(*plan, output);
    } else {
        if (arguments.has("backup"))
            backUp(arguments.value("backup"));
        MadeStatement::apply(plan, output);
    }
    const bool isWhole = plan->count(Outcome::Refused) == 0;
    if (!isWhole || plan->count(Outcome::Altered) > 0)
        output.note(ImportText::summary(*plan));
    return isWhole ? ExitStatus::Done : ExitStatus::No;
}
