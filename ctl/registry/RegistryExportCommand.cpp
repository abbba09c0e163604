#include "ctl/registry/RegistryExportCommand.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/Store.h"
#include "ctl/registry/KeyArgument.h"
#include "inspection/registry/ExportWriter.h"
#include "inspection/registry/RegistryExportJob.h"
#include "inspection/registry/RegistryWalk.h"

namespace {

using Encoding = RegFileWriter::Encoding;

Encoding encodingOf(const QString& name)
{
    const QString plain = name.toLower().remove(QLatin1Char('-'));
    if (plain == QLatin1String("utf16") || plain == QLatin1String("utf16le"))
        return Encoding::Utf16;
    if (plain != QLatin1String("utf8"))
        throw Failure(ExitStatus::WrongUsage,
                      RegistryExportCommand::tr("There is no encoding \"%1\".").arg(name));
    return Encoding::Utf8;
}

// How many values and keys the format has no room for.
int exportToFile(const QString& path, const QString& file, Encoding encoding)
{
    RegistryExportJob job(path, file, encoding);
    finish(job);
    if (!job.commit())
        throw Failure(RegistryExportCommand::tr("%1 cannot be written: %2").arg(file, job.error()));
    return job.leftOut();
}

int exportToOutput(const QString& path, Output& output, Encoding encoding)
{
    ExportWriter writer(output.device(), encoding);
    RegistryWalk walk(path);
    for (auto step = walk.next(); step != RegistryWalk::Step::End; step = walk.next()) {
        Interruption::check();
        if (step == RegistryWalk::Step::Key)
            writer.key(walk.path());
        else
            writer.value(walk.key(), walk.name());
        if (!writer.isGood())
            throw Failure(RegistryExportCommand::tr("The standard output cannot be written: %1")
                              .arg(output.device().errorString()));
    }
    return writer.leftOut();
}

} // namespace

void RegistryExportCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOption({QStringLiteral("encoding"), tr("utf-16, as Windows writes it, or utf-8."),
                      QStringLiteral("NAME"), QStringLiteral("utf-16")});
}

// Without a file, or for "-", the registry file is the output, and there is no document around it.
ExitStatus RegistryExportCommand::run(const Arguments& arguments, Output& output)
{
    const Encoding encoding = encodingOf(arguments.value("encoding"));
    const QString path = KeyArgument::existing(arguments.at(0));
    const QString file = arguments.at(1);
    const bool isToOutput = file.isEmpty() || file == QLatin1String("-");
    if (isToOutput && output.form() == Output::Form::Json)
        throw Failure(ExitStatus::WrongUsage, tr("With --json, name a file to export to."));
    if (!isToOutput)
        Store::refuseOwnFile(file);
    const int leftOut =
        isToOutput ? exportToOutput(path, output, encoding) : exportToFile(path, file, encoding);
    if (leftOut == 0)
        return ExitStatus::Done;
    output.note(tr("Left out, with the reasons in comments of the file: %L1.").arg(leftOut));
    return ExitStatus::No;
}
