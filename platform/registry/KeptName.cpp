#include "platform/registry/KeptName.h"

QString KeptName::afterRestart(const QString& path)
{
    const int levels = path.count(QLatin1Char('/'));
    if (levels > 1 && path.endsWith(QLatin1Char('/')))
        return {};
    const int first = path.indexOf(QLatin1Char('/'));
    const QString general = QStringLiteral("General");
    const bool isGeneral = path.leftRef(first).compare(general, Qt::CaseInsensitive) == 0;
    return levels > 0 && isGeneral ? general + path.mid(first) : path;
}

bool KeptName::losesFirst(const QString& name)
{
    return name.startsWith(QChar::ByteOrderMark);
}
