#include "ctl/trace/TraceRecordCommand.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordedProgram.h"
#include "ctl/trace/RecordingFollower.h"
#include "trace/RecordingOptions.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <optional>

namespace {

constexpr int pause = 20; // milliseconds

struct TraceRecordTexts
{
    Q_DECLARE_TR_FUNCTIONS(TraceRecordCommand)
};

[[noreturn]] void refuse(const QString& message)
{
    throw Failure(ExitStatus::WrongUsage, message);
}

// Beside the program, as it is built, or where it is installed.
QString recordingLibrary()
{
    const QString name = QStringLiteral("libquayside-trace.so");
    const QDir folder(QCoreApplication::applicationDirPath());
    for (const QString& path :
         {folder.filePath(name),
          folder.filePath(QStringLiteral("../" QUAYSIDE_LIBRARY_FOLDER "/") + name)}) {
        if (QFileInfo(path).isFile())
            return QDir::cleanPath(path);
    }
    throw Failure(TraceRecordTexts::tr("%1 is not installed.").arg(name));
}

std::size_t longestText(const QString& text)
{
    bool isNumber = false;
    const qulonglong number = text.toULongLong(&isNumber);
    if (!isNumber)
        refuse(TraceRecordTexts::tr("--text needs a number, not \"%1\".").arg(text));
    return static_cast<std::size_t>(number);
}

std::string selectionOf(const QString& list)
{
    std::string selection = list.toStdString();
    std::string unknown;
    if (!trace::CallSelection::parse(selection, unknown))
        refuse(TraceRecordTexts::tr("There is no operation and no manager \"%1\".")
                   .arg(QString::fromStdString(unknown)));
    return selection;
}

QString fileOf(const Arguments& arguments)
{
    const QString usual = QFileInfo(arguments.at(0)).fileName() + QStringLiteral(".trace");
    return QDir::current().absoluteFilePath(arguments.has("output") ? arguments.value("output")
                                                                    : usual);
}

trace::RecordingOptions optionsOf(const Arguments& arguments)
{
    trace::RecordingOptions options;
    options.file = QFile::encodeName(fileOf(arguments)).toStdString();
    options.hasAllCallers = arguments.has("all");
    if (arguments.has("hide") &&
        arguments.value("hide").compare(QLatin1String("data"), Qt::CaseInsensitive) != 0)
        refuse(TraceRecordTexts::tr("Only data can be hidden, not \"%1\".")
                   .arg(arguments.value("hide")));
    options.hidesData = arguments.has("hide");
    if (arguments.has("text"))
        options.longestText = longestText(arguments.value("text"));
    options.selection = selectionOf(arguments.value("calls"));
    return options;
}

// What was recorded there before must not be taken for what is recorded now.
void empty(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw Failure(QStringLiteral("%1: %2").arg(path, file.errorString()));
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

// Waits for the end of the program, and prints its calls meanwhile where that is wanted.
int finish(RecordedProgram& program, RecordingFollower* follower)
{
    bool isTold = false;
    std::optional<int> status;
    while (!status) {
        status = program.wait(pause);
        if (Interruption::isAsked() && !isTold)
            program.signal(SIGTERM);
        isTold = Interruption::isAsked();
        if (follower)
            follower->read(status.has_value());
    }
    return *status;
}

} // namespace

void TraceRecordCommand::addOptions(QCommandLineParser& parser) const
{
    // What stands behind the program belongs to it.
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions({
        {{QStringLiteral("o"), QStringLiteral("output")},
         tr("Records into this file; usually into PROGRAM.trace in the working folder."),
         QStringLiteral("FILE")},
        {{QStringLiteral("p"), QStringLiteral("print")},
         tr("Prints the calls on the standard error as they come.")},
        {QStringLiteral("failures"), tr("Prints only the calls that fail.")},
        {{QStringLiteral("e"), QStringLiteral("calls")},
         tr("Records only these operations and managers; leaves those out that have \"!\" in "
            "front."),
         QStringLiteral("LIST")},
        {QStringLiteral("all"), tr("Records the calls of the program itself too.")},
        {QStringLiteral("hide"), tr("Records lengths in place of values; WHAT is \"data\"."),
         QStringLiteral("WHAT")},
        {QStringLiteral("text"), tr("Records only so many characters of a text and bytes of data."),
         QStringLiteral("NUMBER")},
    });
}

ExitStatus TraceRecordCommand::run(const Arguments& arguments, Output& output)
{
    const trace::RecordingOptions options = optionsOf(arguments);
    const QString library = recordingLibrary();
    const QString file = QFile::decodeName(options.file.c_str());
    empty(file);
    std::optional<RecordingFollower> follower;
    if (arguments.has("print") || arguments.has("failures"))
        follower.emplace(file, arguments.has("failures"));
    RecordedProgram program(library, options);
    program.start(arguments.from(0));
    const int status = finish(program, follower ? &*follower : nullptr);
    if (QFileInfo(file).size() == 0)
        output.note(tr("Nothing is recorded: the program has not handed its services over."));
    return static_cast<ExitStatus>(status);
}
