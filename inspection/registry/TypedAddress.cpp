#include "inspection/registry/TypedAddress.h"

#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

#include <QRegularExpression>

#include <algorithm>

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

QString withoutFirstLevel(const QString& path)
{
    return path.section(QLatin1Char('/'), 1);
}

// The key below `parent` that the levels from `at` on lead to in any case, the exact one first.
QString foundBelow(const RegistryIndex& index, const QString& parent, const QStringList& levels,
                   int at)
{
    if (at == levels.size())
        return parent;
    QStringList names = listRegistryKey(index, parent).allKeys();
    std::stable_partition(names.begin(), names.end(),
                          [&](const QString& name) { return name == levels.at(at); });
    for (const QString& name : qAsConst(names)) {
        if (name.compare(levels.at(at), Qt::CaseInsensitive) != 0)
            continue;
        const QString found = foundBelow(index, RegistryPath::join(parent, name), levels, at + 1);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

} // namespace

QStringList pathsOfAddress(const QString& address)
{
    QStringList paths;
    QString path;
    if (!RegistryPath::parse(address.trimmed(), path))
        return paths;
    paths.append(path);
    const QString first = path.section(QLatin1Char('/'), 0, 0);
    if (isAbbreviatedRoot(first))
        paths.append(withoutFirstLevel(path));
    if (RegistryPath::parse(address, path))
        paths.prepend(path);
    if (!isComputer(first.trimmed()))
        return paths;
    const QStringList below = pathsOfAddress(withoutFirstLevel(paths.first()));
    return below.isEmpty() ? below : paths + below;
}

QString keyInOtherCase(const RegistryIndex& index, const QString& path)
{
    const QString found =
        foundBelow(index, {}, path.split(QLatin1Char('/'), Qt::SkipEmptyParts), 0);
    return found == path ? QString() : found;
}

QStringList completionsOf(const RegistryIndex& index, const QString& typed, int most)
{
    const int separator = typed.lastIndexOf(QRegularExpression(QStringLiteral("[\\\\/]")));
    const QString before = typed.left(separator + 1);
    const QString rest = typed.mid(separator + 1);
    QStringList completions;
    for (const QString& path : pathsOfAddress(before)) {
        const QStringList names = listRegistryKey(index, path).allKeys();
        for (const QString& name : names) {
            if (completions.size() < most && name.startsWith(rest, Qt::CaseInsensitive))
                completions.append(before + name);
        }
    }
    completions.removeDuplicates();
    return completions;
}
