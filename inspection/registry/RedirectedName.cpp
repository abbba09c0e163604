#include "inspection/registry/RedirectedName.h"

#include "inspection/registry/RegistryPath.h"

#include <QCoreApplication>

namespace {

struct RedirectedName
{
    Q_DECLARE_TR_FUNCTIONS(RedirectedName)
};

// The name by itself: in a whole path that is shown both kinds of separators look the same.
QString filledIn(const QString& sentence, const QString& path)
{
    const QString opened = openedPath(path);
    return sentence.arg(RegistryPath::name(opened),
                        RegistryPath::shown(RegistryPath::parent(opened)));
}

} // namespace

bool isOpenedElsewhere(const QString& path)
{
    return path.contains(QLatin1Char('\\'));
}

QString openedPath(const QString& path)
{
    return isOpenedElsewhere(path) ? RegistryPath::slashed(path) : path;
}

QString keyOpenedElsewhere(const QString& path)
{
    return filledIn(RedirectedName::tr("A name with a \"\\\" in it: a host library that opens this "
                                       "key gets the key \"%1\" in %2."),
                    path);
}

QString valueOpenedElsewhere(const QString& path)
{
    return filledIn(RedirectedName::tr("A name with a \"\\\" in it: a host library that asks for "
                                       "this value gets the value \"%1\" in %2."),
                    path);
}
