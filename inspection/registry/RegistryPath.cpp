#include "inspection/registry/RegistryPath.h"

namespace {

constexpr const char* names[] = {"HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE", "HKEY_CLASSES_ROOT",
                                 "HKEY_USERS"};

bool isRoot(const QString& level)
{
    for (const char* root : names) {
        if (level.compare(QLatin1String(root), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

QStringList RegistryPath::rootNames()
{
    QStringList roots;
    for (const char* root : names)
        roots.append(QLatin1String(root));
    return roots;
}

QString RegistryPath::shown(const QString& path)
{
    QString text = path;
    text.replace(QLatin1Char('/'), QLatin1Char('\\'));
    const QString root = QLatin1String(names[0]);
    return text.isEmpty() ? root : root + QLatin1Char('\\') + text;
}

QString RegistryPath::slashed(QString text)
{
    const QLatin1Char slash('/');
    return text.replace(QLatin1Char('\\'), slash).split(slash, Qt::SkipEmptyParts).join(slash);
}

bool RegistryPath::parse(const QString& text, QString& path)
{
    QStringList levels = slashed(text).split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (!levels.isEmpty() &&
        levels.first().startsWith(QLatin1String("HKEY_"), Qt::CaseInsensitive)) {
        if (!isRoot(levels.first()))
            return false;
        levels.removeFirst();
    }
    path = levels.join(QLatin1Char('/'));
    return true;
}

QString RegistryPath::join(const QString& parent, const QString& name)
{
    return parent.isEmpty() ? name : parent + QLatin1Char('/') + name;
}

QString RegistryPath::parent(const QString& path)
{
    return path.left(qMax(0, path.lastIndexOf(QLatin1Char('/'))));
}

QString RegistryPath::name(const QString& path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}
