#include "ctl/registry/RegistryCompareCommand.h"

#include "ctl/Failure.h"
#include "ctl/Output.h"
#include "ctl/registry/DifferenceRecord.h"
#include "ctl/registry/KeyArgument.h"
#include "inspection/registry/RegistryDifference.h"

#include <QFile>
#include <QFileInfo>

namespace {

bool isFile(const QString& argument)
{
    return QFileInfo(argument).isFile();
}

std::unique_ptr<QFile> opened(const QString& name)
{
    auto file = std::make_unique<QFile>(name);
    if (!file->open(QIODevice::ReadOnly))
        throw Failure(
            RegistryCompareCommand::tr("%1 cannot be read: %2").arg(name, file->errorString()));
    return file;
}

// What does not begin as a registry file is a store.
RegistryContents contentsOfFile(const QString& name, const QString& path)
{
    RegistryContents contents = RegistryContents::ofRegistryFile(opened(name), path);
    if (contents.error().isEmpty())
        return contents;
    contents = RegistryContents::ofStoreFile(name, path);
    if (!contents.error().isEmpty())
        throw Failure(RegistryCompareCommand::tr("%1: %2").arg(name, contents.error()));
    return contents;
}

// Beside a file, a key is that of the usual store, and restricts the file too.
RegistryContents contentsOf(const QString& argument, const QString& other)
{
    if (!isFile(argument))
        return RegistryContents::ofKey(KeyArgument::existing(argument));
    return contentsOfFile(argument, isFile(other) ? QString() : KeyArgument::any(other));
}

} // namespace

ExitStatus RegistryCompareCommand::run(const Arguments& arguments, Output& output)
{
    const RegistryContents before = contentsOf(arguments.at(0), arguments.at(1));
    const RegistryContents after = contentsOf(arguments.at(1), arguments.at(0));
    const int refused = before.refused() + after.refused();
    if (refused > 0)
        output.note(tr("Statements that the registry would refuse: %L1.").arg(refused));
    const std::vector<RegistryDifference> differences = registryDifferences(before, after);
    DifferenceRecord::begin(output);
    for (const RegistryDifference& difference : differences)
        DifferenceRecord::print(difference, output);
    return differences.empty() ? ExitStatus::Done : ExitStatus::No;
}
