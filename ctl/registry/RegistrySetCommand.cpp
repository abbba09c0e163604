#include "ctl/registry/RegistrySetCommand.h"

#include "ctl/Failure.h"
#include "ctl/Output.h"
#include "ctl/registry/KeyArgument.h"
#include "ctl/registry/MadeStatement.h"
#include "inspection/registry/ImportText.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/SetValueCheck.h"
#include "inspection/registry/ValueInput.h"
#include "platform/WindowsTypes.h"
#include "platform/registry/TypeName.h"
#include "platform/registry/ValueChange.h"

namespace {

using Outcome = ImportPlan::Outcome;

constexpr unsigned int lastType = REG_QWORD;

// By its Windows name, with or without the prefix, or by its number.
unsigned int typeOf(const QString& text)
{
    for (unsigned int type = 0; type <= lastType; ++type) {
        const QString name = registryTypeName(type);
        if (text.compare(name, Qt::CaseInsensitive) == 0 ||
            name.midRef(4).compare(text, Qt::CaseInsensitive) == 0)
            return type;
    }
    bool isNumber = false;
    const unsigned int number = text.toUInt(&isNumber);
    if (!isNumber)
        throw Failure(ExitStatus::WrongUsage,
                      RegistrySetCommand::tr("There is no type \"%1\".").arg(text));
    return number;
}

// What is not written well is wrong usage; what the service refuses could not be done.
RegFileEntry statementOf(const Arguments& arguments)
{
    RegFileEntry entry;
    entry.action = RegFileEntry::Action::SetValue;
    entry.key = RegistryPath::shown(KeyArgument::any(arguments.at(0)));
    entry.name = arguments.at(1);
    entry.type = typeOf(arguments.value("type"));
    const ValueInput input(entry.type, arguments.at(2));
    const bool isRefused =
        ValueChange(entry.type, input.data()).outcome() == ValueChange::Outcome::Refused;
    if (!input.isValid())
        throw Failure(isRefused ? ExitStatus::Failed : ExitStatus::WrongUsage, input.problem());
    entry.text = arguments.at(2);
    entry.data = input.data();
    return entry;
}

void print(const ImportPlan::Statement& statement, Output& output)
{
    const RegFileEntry& entry = statement.entry;
    const ValueChange change(entry.type, ImportCheck::dataToSet(entry));
    output.begin({Columns::key, Columns::name, Columns::before, Columns::after, Columns::stored,
                  Columns::outcome});
    output.record({entry.key, entry.name, statement.before, ImportText::data(entry),
                   change.storedText(), ImportText::outcome(statement)});
}

// What the dry run has not foreseen, such as an entry of another program.
void checkReading(const RegFileEntry& entry, Output& output)
{
    QString path;
    RegistryPath::parse(entry.key, path);
    const auto other = otherReading(path, entry.name, entry.type, ImportCheck::dataToSet(entry));
    if (other)
        output.note(RegistrySetCommand::tr("A host library reads of it: %1").arg(*other));
}

} // namespace

void RegistrySetCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOptions(
        {{QStringLiteral("type"), tr("The type, such as REG_SZ or DWORD."), QStringLiteral("TYPE"),
          QStringLiteral("REG_SZ")},
         {QStringLiteral("strict"), tr("Sets nothing where the service would alter it.")},
         {QStringLiteral("dry-run"), tr("Tells what would be done, and does nothing.")}});
}

ExitStatus RegistrySetCommand::run(const Arguments& arguments, Output& output)
{
    const auto plan = MadeStatement::planOf(statementOf(arguments));
    const ImportPlan::Statement& statement = plan->statements().front();
    if (statement.outcome == Outcome::Refused)
        throw Failure(statement.remark);
    const bool isAltered = statement.outcome == Outcome::Altered;
    if (arguments.has("strict") && isAltered)
        throw Failure(ExitStatus::No, tr("Not set: %1").arg(statement.remark));
    if (arguments.has("dry-run")) {
        print(statement, output);
        return ExitStatus::Done;
    }
    MadeStatement::apply(plan, output);
    if (isAltered)
        output.note(statement.remark);
    else
        checkReading(statement.entry, output);
    return ExitStatus::Done;
}
