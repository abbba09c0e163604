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
