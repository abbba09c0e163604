#include "ctl/registry/KeyArgument.h"

#include "ctl/Failure.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/TypedAddress.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct KeyArgumentTexts
{
    Q_DECLARE_TR_FUNCTIONS(KeyArgument)
};

} // namespace

// Of the paths that an address may mean, the last one is what people write for a root.
QString KeyArgument::any(const QString& argument)
{
    const QStringList paths = pathsOfAddress(argument);
    if (paths.isEmpty())
        throw Failure(ExitStatus::WrongUsage,
                      KeyArgumentTexts::tr("%1 begins with no known root.").arg(argument));
    const auto found = std::find_if(paths.cbegin(), paths.cend(), isRegistryKey);
    return found == paths.cend() ? paths.last() : *found;
}

QString KeyArgument::existing(const QString& argument)
{
    QString path = any(argument);
    if (!isRegistryKey(path))
        throw Failure(
            ExitStatus::No,
            KeyArgumentTexts::tr("%1: there is no such key.").arg(RegistryPath::shown(path)));
    return path;
}
