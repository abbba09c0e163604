#include "tests/platform/profiles/PlainNarrowProfile.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>

PlainNarrowProfile::PlainNarrowProfile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    QTextStream stream(&file);
    stream.setCodec("utf-8");
    QString current;
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (line.startsWith('[')) {
            current = line;
            m_sections.insert(current, {});
            continue;
        }
        const QStringList parts = line.split('=');
        if (parts.size() == 2 && !current.isEmpty())
            m_sections[current].insert(parts[0].trimmed(), parts[1].trimmed());
    }
}

void PlainNarrowProfile::set(const QString& header, const QString& key, const QString& value)
{
    m_sections[header][key] = value;
}

QByteArray PlainNarrowProfile::writtenTo(const QString& path) const
{
    QFile file(path);
    file.remove();
    if (!file.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Text))
        return {};
    QTextStream stream(&file);
    stream.setCodec("utf-8");
    for (auto section = m_sections.begin(); section != m_sections.end(); ++section) {
        stream << section.key() << "\n";
        for (auto entry = section->begin(); entry != section->end(); ++entry)
            stream << entry.key() << "=" << entry.value() << "\n";
    }
    stream.flush();
    file.seek(0);
    file.setTextModeEnabled(false);
    return file.readAll();
}
