#include "ctl/Program.h"

#include "app/StartUp.h"
#include "app/Version.h"
#include "ctl/Command.h"
#include "ctl/Failure.h"
#include "ctl/Message.h"

namespace {

// Options that may stand before the command as well as behind it.
void addGlobalOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {{QStringLiteral("h"), QStringLiteral("help")}, Program::tr("Shows this help.")},
        {QStringLiteral("version"), Program::tr("Shows the version.")},
        {QStringLiteral("store"), Program::tr("Works on this file instead of the usual store."),
         QStringLiteral("FILE")},
        {QStringLiteral("json"), Program::tr("Prints one JSON document.")},
        {QStringLiteral("quiet"), Program::tr("Prints nothing but errors.")},
    });
}

bool isChanging(CommandTable::Needs needs)
{
    return needs == CommandTable::Needs::ChangedStore || needs == CommandTable::Needs::NewStore;
}

QString commandName(const CommandTable::Row& row)
{
    return QLatin1String(row.group) + QLatin1Char(' ') + QLatin1String(row.name);
}

// The part of Qt's help that lists the options.
QString optionsOf(const QCommandLineParser& parser)
{
    const QString help = parser.helpText();
    const int blank = help.indexOf(QLatin1String("\n\n"));
    return help.mid(blank + 2);
}

} // namespace

Program::Program(const QStringList& arguments) : m_arguments(arguments)
{
    m_global.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    addGlobalOptions(m_global);
    addGlobalOptions(m_own);
    m_own.parse({m_arguments.first()}); // options may be asked for before there is a command
}

ExitStatus Program::run()
{
    try {
        return runParsed();
    } catch (const Failure& failure) {
        m_isToBeDropped = true;
        showMessage(failure.message());
        return failure.status();
    }
}

ExitStatus Program::runParsed()
{
    if (!m_global.parse(m_arguments))
        return wrongUsage(m_global.errorText());
    const QStringList words = m_global.positionalArguments();
    const QString group = words.value(0);
    const QString name = words.value(1);
    if (isSet("version"))
        return print(QStringLiteral("quaysidectl %1\n").arg(QLatin1String(programVersion())));
    const bool asksForGroup = CommandTable::hasGroup(group) &&
                              (name == QLatin1String("--help") || name == QLatin1String("-h"));
    if (asksForGroup || (isSet("help") && !CommandTable::find(group, name)))
        return print(overview(group));
    if (group.isEmpty())
        return wrongUsage(tr("Which command?"));
    const CommandTable::Row* row = CommandTable::find(group, name);
    return row ? runCommand(*row)
               : wrongUsage(tr("There is no command \"%1\".").arg((group + ' ' + name).trimmed()));
}

ExitStatus Program::runCommand(const CommandTable::Row& row)
{
    const std::unique_ptr<Command> command = row.make();
    command->addOptions(m_own);
    if (isChanging(row.needs))
        m_own.addOption(
            {QStringLiteral("force"), tr("Saves a damaged store without its damaged lines.")});
    if (!m_own.parse(QStringList(m_arguments.first()) + m_global.positionalArguments().mid(2)))
        return wrongUsage(m_own.errorText() + ' ' +
                          tr("Put \"--\" before arguments that begin with \"-\"."));
    if (isSet("help"))
        return print(helpOf(row, m_own));
    if (isSet("version"))
        return print(QStringLiteral("quaysidectl %1\n").arg(QLatin1String(programVersion())));
    const int count = m_own.positionalArguments().size();
    if (count < row.fewest || count > row.most)
        return wrongUsage(
            tr("Usage: %1").arg(commandName(row) + ' ' + QLatin1String(row.arguments)));
    Output output(form(), commandName(row));
    try {
        return runIn(output, *command, row);
    } catch (const Failure& failure) {
        output.finish(failure.status(), failure.message());
        throw;
    }
}

ExitStatus Program::runIn(Output& output, Command& command, const CommandTable::Row& row)
{
    const QString file = storeFile();
    if (row.needs == CommandTable::Needs::Display)
        StartUp::handOver(QString());
    else if (row.needs != CommandTable::Needs::Nothing)
        openStore(row.needs, file, output);
    const ExitStatus status = command.run(Arguments(m_own), output);
    output.finish(status);
    return status;
}

// A store with lines that are no entries would be saved without them: it may be no store at all.
void Program::openStore(CommandTable::Needs needs, const QString& file, const Output& output)
{
    m_store.emplace(file, needs == CommandTable::Needs::Store ||
                              needs == CommandTable::Needs::ChangedStore);
    const QString damage = Store::damage();
    if (damage.isEmpty())
        return;
    if (isChanging(needs) && !isSet("force") && !isSet("dry-run"))
        throw Failure(tr("%1 Nothing is saved; --force saves the rest.").arg(damage));
    output.note(damage);
}

ExitStatus Program::wrongUsage(const QString& message) const
{
    showMessage(message);
    showMessage(tr("Try \"quaysidectl --help\"."));
    // What comes first may be wrong, and the option behind it not parsed.
    if (!isSet("quiet") && m_arguments.contains(QLatin1String("--json"))) {
        const QStringList words = m_global.positionalArguments().mid(0, 2);
        Output(Output::Form::Json, words.join(' ')).finish(ExitStatus::WrongUsage, message);
    }
    return ExitStatus::WrongUsage;
}

ExitStatus Program::print(const QString& text)
{
    StandardOutput output;
    output.put(text.toLocal8Bit());
    output.finish();
    return ExitStatus::Done;
}

bool Program::isSet(const char* option) const
{
    return m_global.isSet(QLatin1String(option)) || m_own.isSet(QLatin1String(option));
}

Output::Form Program::form() const
{
    if (isSet("quiet"))
        return Output::Form::Quiet;
    return isSet("json") ? Output::Form::Json : Output::usualForm();
}

// Empty where the option is not given. A variable of a script that is empty by mistake must not
// lead to the usual store.
QString Program::storeFile() const
{
    const QString option = QStringLiteral("store");
    QString file = m_own.isSet(option) ? m_own.value(option) : m_global.value(option);
    if (isSet("store") && file.isEmpty())
        throw Failure(ExitStatus::WrongUsage, tr("--store needs the name of a file."));
    return file;
}

// All commands, or those of a group.
QString Program::overview(const QString& group) const
{
    QString text =
        tr("Usage: %1").arg(QStringLiteral("quaysidectl [--store FILE] [--json] [--quiet] ")) +
        QStringLiteral("COMMAND ...\n\n") + tr("Commands:") + '\n';
    for (const CommandTable::Row& row : CommandTable::rows()) {
        const QString usage = commandName(row) + ' ' + QLatin1String(row.arguments);
        if (group.isEmpty() || group == QLatin1String(row.group))
            text += QStringLiteral("  %1  %2\n").arg(usage, -34).arg(CommandTable::helpOf(row));
    }
    return text + '\n' + optionsOf(m_global) + '\n' +
           tr("Status: 0 done, found or equal; 1 a clean no; 2 wrong usage; 3 could not be done.") +
           '\n';
}

QString Program::helpOf(const CommandTable::Row& row, const QCommandLineParser& parser)
{
    return tr("Usage: %1")
               .arg(QStringLiteral("quaysidectl %1 [...] %2\n\n")
                        .arg(commandName(row), QLatin1String(row.arguments))) +
           CommandTable::helpOf(row) + "\n\n" + optionsOf(parser);
}
