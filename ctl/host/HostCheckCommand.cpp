#include "ctl/host/HostCheckCommand.h"

#include "ctl/Failure.h"
#include "ctl/Output.h"
#include "inspection/host/HostCheck.h"
#include "inspection/host/LoadTrial.h"

#include <QFileInfo>

#include <algorithm>

namespace {

constexpr Column libraryColumn{"library", QT_TRANSLATE_NOOP("Output", "Library")};
constexpr Column severityColumn{"severity", QT_TRANSLATE_NOOP("Output", "Severity")};
constexpr Column subjectColumn{"subject", QT_TRANSLATE_NOOP("Output", "About")};
constexpr Column wantedColumn{"wanted", QT_TRANSLATE_NOOP("Output", "Wanted")};
constexpr Column hereColumn{"here", QT_TRANSLATE_NOOP("Output", "Here")};

constexpr double longestLimit = 86400; // seconds

QString usualApplication()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/quayside");
}

// One that is named and not there is a slip; the usual one may not be installed.
QString applicationOf(const Arguments& arguments)
{
    if (!arguments.has("application"))
        return usualApplication();
    QString name = arguments.value("application");
    if (!QFileInfo(name).isFile())
        throw Failure(HostCheckCommand::tr("%1: there is no such file.").arg(name));
    return name;
}

// A trial would only repeat that a library for another machine cannot be loaded.
bool isForThisMachine(const HostReport& report)
{
    return std::none_of(
        report.findings.cbegin(), report.findings.cend(),
        [](const HostFinding& finding) { return finding.kind == HostFinding::Kind::Machine; });
}

Output::Tone toneOf(HostFinding::Severity severity)
{
    return severity == HostFinding::Severity::Error ? Output::Tone::Bad : Output::Tone::Plain;
}

bool isReadable(const HostReport& report)
{
    return report.fault != ElfFault::Missing && report.fault != ElfFault::Unreadable;
}

void printNeeds(const QString& library, const HostReport& report, Output& output)
{
    for (const HostNeed& need : report.needs) {
        const QString wantedBy = need.wantedBy == report.path ? library : need.wantedBy;
        output.record({library, QStringLiteral("needed"), QString(), need.name, wantedBy, need.path,
                       need.wayText()});
    }
    for (const HostVersion& version : report.versions)
        output.record({library, QStringLiteral("product"), QString(), version.product,
                       version.wanted, version.here, QString()});
}

void printFunctions(const QString& library, const HostReport& report, Output& output)
{
    for (const HostFunctionState& function : report.functions) {
        if (function.isDefined)
            output.record({library, QStringLiteral("defines"), QString(), function.name, QString(),
                           QString(), QString()});
    }
}

} // namespace

void HostCheckCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOptions({
        {QStringLiteral("application"),
         tr("The application that is to load the libraries; otherwise the one beside this "
            "program."),
         QStringLiteral("FILE")},
        {QStringLiteral("load"),
         tr("Loads each library for a trial too, in a process of its own. This runs its start-up "
            "code.")},
        {QStringLiteral("limit"), tr("How long a trial may take; otherwise 10 seconds."),
         QStringLiteral("SECONDS")},
    });
}

ExitStatus HostCheckCommand::run(const Arguments& arguments, Output& output)
{
    const std::chrono::milliseconds trialLimit = limit(arguments);
    HostCheck check(applicationOf(arguments));
    bool isGood = true;
    QString unreadable;
    output.begin({libraryColumn, Columns::kind, severityColumn, subjectColumn, wantedColumn,
                  hereColumn, Columns::remark});
    const QStringList libraries = arguments.from(0);
    for (const QString& library : libraries) {
        const HostReport report = check.check(library);
        print(library, report, output);
        isGood = report.willLoad() && isGood;
        if (arguments.has("load") && isForThisMachine(report))
            isGood = printTrial(library, trialLimit, output) && isGood;
        if (unreadable.isEmpty() && !isReadable(report))
            unreadable = report.path + QStringLiteral(": ") + elfFaultText(report.fault);
    }
    if (!unreadable.isEmpty())
        throw Failure(unreadable);
    return isGood ? ExitStatus::Done : ExitStatus::No;
}

// In the order in which somebody who reads them would ask: does it load, why not, what does it
// need.
void HostCheckCommand::print(const QString& library, const HostReport& report, Output& output)
{
    const bool isGood = report.willLoad();
    output.record({library, QStringLiteral("verdict"), QString(), report.machine, QString(),
                   QString(), isGood ? tr("Can be loaded here.") : tr("Cannot be loaded here.")},
                  isGood ? Output::Tone::Good : Output::Tone::Bad);
    for (const HostFinding& finding : report.findings)
        output.record({library, finding.kindName(), finding.severityName(), finding.subject,
                       QString(), QString(), finding.text},
                      toneOf(finding.severity));
    printNeeds(library, report, output);
    printFunctions(library, report, output);
}

bool HostCheckCommand::printTrial(const QString& library, std::chrono::milliseconds limit,
                                  Output& output)
{
    const LoadTrial trial = tryLoading(library, limit);
    if (trial.outcome == LoadTrial::Outcome::NotTried)
        throw Failure(library + QStringLiteral(": ") + trial.text());
    const bool isLoaded = trial.outcome == LoadTrial::Outcome::Loaded;
    output.record({library, QStringLiteral("trial"), isLoaded ? QString() : QStringLiteral("error"),
                   QString(), QString(), QString(), trial.text()},
                  isLoaded ? Output::Tone::Good : Output::Tone::Bad);
    return isLoaded;
}

std::chrono::milliseconds HostCheckCommand::limit(const Arguments& arguments)
{
    if (!arguments.has("limit"))
        return std::chrono::seconds(10);
    bool isNumber = false;
    const double seconds = arguments.value("limit").toDouble(&isNumber);
    if (!isNumber || !(seconds > 0) || seconds > longestLimit)
        throw Failure(ExitStatus::WrongUsage,
                      tr("\"%1\" is no number of seconds.").arg(arguments.value("limit")));
    return std::chrono::ceil<std::chrono::milliseconds>(std::chrono::duration<double>(seconds));
}
