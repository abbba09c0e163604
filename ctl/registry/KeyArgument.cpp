#include "ctl/registry/KeyArgument.h"

#include "ctl/Failure.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/TypedAddress.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int longestShortRoot = 4;

struct KeyArgumentTexts
{
    Q_DECLARE_TR_FUNCTIONS(KeyArgument)
};

// A slip such as "HKXX" would make a key of that name, which is then the first level of `path` too.
bool hasUnknownRoot(const QString& argument, const QString& path)
{
    const QString first = RegistryPath::slashed(argument).section(QLatin1Char('/'), 0, 0);
    return path.startsWith(first) && first.size() <= longestShortRoot &&
           first.startsWith(QLatin1String("HK")) && first.size() > 2 && first == first.toUpper();
}

Failure unknownRoot(const QString& argument)
{
    return Failure(ExitStatus::WrongUsage,
                   KeyArgumentTexts::tr("%1 begins with no known root.").arg(argument));
}

} // namespace

// Of the paths that an address may mean, the last one is what people write for a root.
QString KeyArgument::any(const QString& argument)
{
    const QStringList paths = pathsOfAddress(argument);
    if (paths.isEmpty())
        throw unknownRoot(argument);
    const auto found = std::find_if(paths.cbegin(), paths.cend(), isRegistryKey);
    if (found == paths.cend() && hasUnknownRoot(argument, paths.last()))
        throw unknownRoot(argument);
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
