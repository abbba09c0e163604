#include "inspection/files/WindowsPath.h"

#include <QRegularExpression>

namespace {

const QRegularExpression& drive()
{
    static const QRegularExpression expression(QStringLiteral("^[A-Za-z]:(?=[\\\\/])"));
    return expression;
}

} // namespace

bool WindowsPath::isIn(const QString& text)
{
    return text.contains(u'\\') || drive().match(text).hasMatch();
}

QString WindowsPath::asMeantHere(const QString& path)
{
    QString result = QString(path).remove(drive()).replace(u'\\', u'/');
    if (result.startsWith(QLatin1String("//"))) // of a share on a server
        result.remove(0, 1);
    return result;
}

QString WindowsPath::note()
{
    return tr("The services know no drives, and a backslash is a character of a name to them: only "
              "/ separates folders.");
}
