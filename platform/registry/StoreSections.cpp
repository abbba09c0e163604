#include "platform/registry/StoreSections.h"

#include "platform/profiles/IniName.h"

#include <QFile>

namespace {

// The group whose header begins at `start`. A header without an end is one up to the line's end.
QString groupAt(const QByteArray& text, int start)
{
    const int end = text.indexOf('\n', start);
    const QString prefix = IniName::sectionPrefix(text.mid(start, end < 0 ? -1 : end - start));
    return prefix.chopped(prefix.isEmpty() ? 0 : 1);
}

// The line that begins at `start`, without the spaces around it; it points into the text.
QByteArray lineAt(const QByteArray& text, int start)
{
    const int end = text.indexOf('\n', start);
    const int size = (end < 0 ? text.size() : end) - start;
    return QByteArray::fromRawData(text.constData() + start, size).trimmed();
}

bool hasLevels(const QByteArray& entry)
{
    return IniName::unescaped(entry.left(entry.indexOf('='))).contains(QLatin1Char('/'));
}

} // namespace

QStringList storeSections(const QString& file)
{
    QStringList sections;
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return sections;
    const QByteArray text = '\n' + input.readAll();
    for (int at = text.indexOf("\n["); at >= 0; at = text.indexOf("\n[", at + 1))
        sections.append(groupAt(text, at + 1));
    return sections;
}

QString nameInSection(const QString& group)
{
    return group.isEmpty() ? QStringLiteral("x") : group + QLatin1String("/x");
}

bool hasHiddenGroups(const QString& file)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = input.readAll().replace('\r', '\n');
    bool isInNoGroup = true;
    for (int start = 0; start < text.size(); start = text.indexOf('\n', start) + 1) {
        const QByteArray line = lineAt(text, start);
        if (line.startsWith('[')) {
            const QString prefix = IniName::sectionPrefix(line);
            isInNoGroup = prefix.isEmpty();
            if (prefix.count(QLatin1Char('/')) > 1)
                return true;
        } else if (isInNoGroup && hasLevels(line)) {
            return true;
        }
        if (text.indexOf('\n', start) < 0)
            break;
    }
    return false;
}
