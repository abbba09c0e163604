#include "inspection/files/TypedPath.h"

#include <QDir>
#include <QUrl>

namespace {

bool isQuoted(const QString& text)
{
    return text.size() >= 2 && text.front() == text.back() &&
           (text.front() == u'"' || text.front() == u'\'');
}

// The path in an address of a file on this machine; null for any other text. QUrl would take the
// wildcard "?" for the start of a query.
QString pathOfAddress(const QString& text)
{
    for (const char* start : {"file://localhost/", "file:///"}) {
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
    if (isQuoted(text))
        return text.mid(1, text.size() - 2);
    QString ofAddress = pathOfAddress(text);
    if (!ofAddress.isNull())
        return ofAddress;
    if (text == u"~" || text.startsWith(QLatin1String("~/")))
        return QDir::homePath() + text.mid(1);
    return typed;
}
