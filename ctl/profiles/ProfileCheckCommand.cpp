#include "ctl/profiles/ProfileCheckCommand.h"

#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/profiles/FamilyOption.h"
#include "ctl/profiles/ProfileEntries.h"
#include "inspection/profiles/ProfileCheckJob.h"

namespace {

void print(const QString& file, const ProfileCheckJob::Finding& finding, Output& output)
{
    const QString line = QString::number(finding.line);
    const QString family =
        finding.family == ProfileFamily::Wide ? QStringLiteral("wide") : QStringLiteral("narrow");
    output.line({file, line, family, finding.reason},
                QStringLiteral("%1:%2: %3: %4").arg(file, line, family, finding.reason));
}

} // namespace

void ProfileCheckCommand::addOptions(QCommandLineParser& parser) const
{
    FamilyOption::add(parser);
    parser.addOption({QStringLiteral("comments"), tr("Tells comments too.")});
}

ExitStatus ProfileCheckCommand::run(const Arguments& arguments, Output& output)
{
    const auto family = FamilyOption::of(arguments);
    const auto comments = arguments.has("comments") ? ProfileCheckJob::Comments::Tell
                                                    : ProfileCheckJob::Comments::Skip;
    output.begin({Columns::file, Columns::line, Columns::family, Columns::reason});
    bool isAny = false;
    for (const QString& file : arguments.from(0)) {
        ProfileCheckJob job(ProfileDocument::bytesOf(existingProfile(file)), comments);
        finish(job);
        for (const ProfileCheckJob::Finding& finding : job.findings()) {
            if (family && finding.family != *family)
                continue;
            print(file, finding, output);
            isAny = true;
        }
    }
    return isAny ? ExitStatus::No : ExitStatus::Done;
}
