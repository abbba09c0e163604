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
    const QString found = redirectedPath(path);
    return sentence.arg(RegistryPath::name(found),
                        RegistryPath::shown(RegistryPath::parent(found)));
}

} // namespace

bool isRedirected(const QString& path)
{
    return path.contains(QLatin1Char('\\'));
}

QString redirectedPath(const QString& path)
{
    return isRedirected(path) ? RegistryPath::slashed(path) : path;
}

QString redirectedKeyText(const QString& path)
{
    return filledIn(RedirectedName::tr("A name with a \"\\\" in it: a host library that opens this "
                                       "key gets the key \"%1\" in %2."),
                    path);
}

QString redirectedValueText(const QString& path)
{
    return filledIn(RedirectedName::tr("A name with a \"\\\" in it: a host library that asks for "
                                       "this value gets the value \"%1\" in %2."),
                    path);
}
