#include "ctl/files/FilesStatCommand.h"

#include "ctl/Output.h"
#include "inspection/files/FileAttributes.h"
#include "inspection/files/PathAnswers.h"
#include "platform/PlatformServicesImp.h"

namespace {

QString yesOrNo(bool isYes)
{
    return isYes ? QStringLiteral("yes") : QStringLiteral("no");
}

} // namespace

ExitStatus FilesStatCommand::run(const Arguments& arguments, Output& output)
{
    const QString path = arguments.at(0);
    const PathAnswers answers(*g_PlatformServices.directoryManager());
    const PathAnswers::Existence existence = answers.existence(path);
    output.begin({Columns::question, Columns::answer});
    output.record({QStringLiteral("exists"), yesOrNo(existence.exists)});
    output.record({QStringLiteral("realPath"), existence.realPath});
    output.record({QStringLiteral("attributes"), attributesText(answers.attributes(path))});
    output.record({QStringLiteral("extension"), answers.extension(path)});
    output.record({QStringLiteral("isUrl"), yesOrNo(answers.isUrl(path))});
    output.record({QStringLiteral("withSeparator"), answers.withSeparator(path)});
    return existence.exists ? ExitStatus::Done : ExitStatus::No;
}
