#include "inspection/files/TypedPath.h"

#include <QDir>
#include <QUrl>

namespace {

bool isQuoted(const QString& text)
{
    return text.size() >= 2 && text.front() == text.back() &&
           (text.front() == u'"' || text.front() == u'\'');
}

bool namesMachine(const QString& text)
{
    const QLatin1String twoSlashes("file://");
    const QString rest = text.mid(twoSlashes.size());
    return text.startsWith(twoSlashes, Qt::CaseInsensitive) && !rest.startsWith(u'/') &&
           !rest.startsWith(QLatin1String("localhost/"), Qt::CaseInsensitive);
}

// The path in an address of a file on this machine; null for any other text. QUrl would take the
// wildcard "?" for the start of a query.
QString pathOfAddress(const QString& text)
{
    if (namesMachine(text))
        return {};
    for (const char* start : {"file://localhost/", "file:///", "file:/"}) {
        const QLatin1String scheme(start);
        if (text.startsWith(scheme, Qt::CaseInsensitive))
            return QUrl::fromPercentEncoding(text.mid(scheme.size() - 1).toUtf8());
    }
    return {};
}

} // namespace

QString typedPath(const QString& typed)
{
    const QString text = typed.trimmed();
    const bool hasMarks = isQuoted(text);
    const QString inside = hasMarks ? text.mid(1, text.size() - 2) : text;
    QString ofAddress = pathOfAddress(inside);
    if (!ofAddress.isNull())
        return ofAddress;
    if (inside == u"~" || inside.startsWith(QLatin1String("~/")))
        return QDir::homePath() + inside.mid(1);
    return hasMarks ? inside : typed;
}
