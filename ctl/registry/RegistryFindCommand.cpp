#include "ctl/registry/RegistryFindCommand.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/Output.h"
#include "ctl/registry/KeyArgument.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/RegistrySearchJob.h"

#include <limits>

namespace {

// Without a place all three are searched.
RegistrySearchJob::Query queryOf(const Arguments& arguments)
{
    const bool anywhere =
        !arguments.has("keys") && !arguments.has("names") && !arguments.has("data");
    RegistrySearchJob::Query query;
    query.text = arguments.at(0);
    query.inKeys = anywhere || arguments.has("keys");
    query.inNames = anywhere || arguments.has("names");
    query.inData = anywhere || arguments.has("data");
    query.mindsCase = arguments.has("case");
    query.wholeWords = arguments.has("word");
    query.isPattern = arguments.has("regex");
    const QRegularExpression pattern(query.text);
    if (query.isPattern && !pattern.isValid())
        throw Failure(ExitStatus::WrongUsage,
                      RegistryFindCommand::tr("\"%1\": %2").arg(query.text, pattern.errorString()));
    return query;
}

void print(const RegistrySearchJob::Hit& hit, Output& output)
{
    output.record({hit.name.isEmpty() ? QStringLiteral("key") : QStringLiteral("value"),
                   RegistryPath::shown(hit.path), hit.name, hit.data});
}

} // namespace

void RegistryFindCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOptions({{QStringLiteral("keys"), tr("In names of keys.")},
                       {QStringLiteral("names"), tr("In names of values.")},
                       {QStringLiteral("data"), tr("In data.")},
                       {QStringLiteral("case"), tr("Upper and lower case letters differ.")},
                       {QStringLiteral("word"), tr("Whole words only.")},
                       {QStringLiteral("regex"), tr("TEXT is a regular expression.")}});
}

ExitStatus RegistryFindCommand::run(const Arguments& arguments, Output& output)
{
    RegistrySearchJob job(queryOf(arguments), KeyArgument::existing(arguments.at(1)),
                          std::numeric_limits<std::size_t>::max());
    output.begin({Columns::kind, Columns::key, Columns::name, Columns::data});
    std::size_t printed = 0;
    while (job.step()) {
        Interruption::check();
        for (; printed < job.hits().size(); ++printed)
            print(job.hits()[printed], output);
    }
    return job.hits().empty() ? ExitStatus::No : ExitStatus::Done;
}
