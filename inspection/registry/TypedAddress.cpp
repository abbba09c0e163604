#include "inspection/registry/TypedAddress.h"

#include "inspection/registry/RegistryPath.h"

namespace {

bool isAbbreviatedRoot(const QString& level)
{
    const QStringList roots = {QStringLiteral("HKCU"), QStringLiteral("HKLM"),
                               QStringLiteral("HKCR"), QStringLiteral("HKU")};
    return roots.contains(level, Qt::CaseInsensitive);
}

// What Windows shows above the roots, in the languages of the window.
bool isComputer(const QString& level)
{
    const QStringList names = {QStringLiteral("Computer"), QStringLiteral("My Computer"),
                               QString::fromUtf8("\xE8\xAE\xA1\xE7\xAE\x97\xE6\x9C\xBA"),
                               QString::fromUtf8("\xE6\xAD\xA4\xE7\x94\xB5\xE8\x84\x91")};
    return names.contains(level, Qt::CaseInsensitive);
}

// A line of a registry file, or a path that somebody has put into quotes.
QString withoutBrackets(const QString& address)
{
    for (const QLatin1String pair : {QLatin1String("[]"), QLatin1String("\"\"")}) {
        if (address.size() > 2 && address.startsWith(pair.front()) && address.endsWith(pair.back()))
            return address.mid(1, address.size() - 2);
    }
    return {};
}

// The address that is meant by this one; null where it means what it says.
QString meantBy(const QString& address)
{
    QString inner = withoutBrackets(address);
    if (!inner.isEmpty())
        return inner;
    const QString path = RegistryPath::slashed(address);
    const QString first = path.section(QLatin1Char('/'), 0, 0).trimmed();
    if (!isAbbreviatedRoot(first) && !isComputer(first))
        return {};
    const int rest = path.indexOf(QLatin1Char('/')) + 1;
    return rest == 0 ? QString(QLatin1String("")) : path.mid(rest);
}

} // namespace

QStringList pathsOfAddress(const QString& address)
{
    const QString trimmed = address.trimmed();
    QString path;
    if (!RegistryPath::parse(trimmed, path))
        return {};
    QStringList paths = {path};
    if (RegistryPath::parse(address, path))
        paths.prepend(path);
    const QString meant = meantBy(trimmed);
    if (meant.isNull())
        return paths;
    const QStringList others = pathsOfAddress(meant);
    return others.isEmpty() ? others : paths + others;
}
