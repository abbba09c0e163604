#include "ctl/registry/RegistryWatchCommand.h"

#include "ctl/Interruption.h"
#include "ctl/Output.h"
#include "ctl/Store.h"
#include "ctl/registry/DifferenceRecord.h"
#include "ctl/registry/KeyArgument.h"
#include "inspection/registry/RegistryDifference.h"
#include "inspection/registry/RegistryPath.h"

#include <QThread>

namespace {

constexpr unsigned long pause = 200; // milliseconds between two looks, each a `stat`

// The keys are below `path`, and printed as the list prints them.
void printChanges(const QString& path, const RegistryContents& before,
                  const RegistryContents& after, Output& output)
{
    for (RegistryDifference difference : registryDifferences(before, after)) {
        difference.key = RegistryPath::shown(difference.key.isEmpty() || path.isEmpty()
                                                 ? path + difference.key
                                                 : RegistryPath::join(path, difference.key));
        DifferenceRecord::print(difference, output);
    }
    output.flush();
}

} // namespace

// The store reads its file again where that has changed; this program itself changes nothing.
ExitStatus RegistryWatchCommand::run(const Arguments& arguments, Output& output)
{
    const QString path = KeyArgument::any(arguments.at(0));
    RegistryContents before = RegistryContents::ofKey(path);
    DifferenceRecord::begin(output);
    output.flush();
    while (!Interruption::isAsked()) {
        QThread::msleep(pause);
        Store::reread();
        RegistryContents after = RegistryContents::ofKey(path);
        if (after.entries() == before.entries())
            continue;
        printChanges(path, before, after, output);
        before = std::move(after);
    }
    return ExitStatus::Done;
}
