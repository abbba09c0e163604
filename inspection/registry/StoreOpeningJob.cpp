#include "inspection/registry/StoreOpeningJob.h"

#include "host/HostLibraries.h"

#include <QFile>
#include <QSettings>

namespace {

// The code unit that an escape in a section's name stands for: "%" and two hexadecimal digits, or
// "%U" and four. Moves `at` to the escape's last character; what is no escape stands for itself.
QChar unescaped(const QByteArray& name, int& at)
{
    if (name.at(at) != '%')
        return QLatin1Char(name.at(at));
    const bool isWide = name.mid(at + 1, 1) == "U";
    const QByteArray digits = isWide ? name.mid(at + 2, 4) : name.mid(at + 1, 2);
    bool isNumber = false;
    const ushort unit = digits.toUShort(&isNumber, 16);
    if (!isNumber)
        return QLatin1Char('%');
    at += digits.size() + (isWide ? 1 : 0);
    return unit;
}

// The group that a section is for, as QSettings names it in a file.
QString groupOf(const QByteArray& section)
{
    if (section.compare("General", Qt::CaseInsensitive) == 0)
        return {};
    if (section.compare("%General", Qt::CaseInsensitive) == 0)
        return QString::fromLatin1(section.mid(1));
    QString group;
    for (int at = 0; at < section.size(); ++at)
        group += unescaped(section, at);
    return group;
}

} // namespace

StoreOpeningJob::StoreOpeningJob()
{
    if (!g_globalSettings)
        return;
    QFile file(g_globalSettings->fileName());
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray text = '\n' + file.readAll();
    for (int start = text.indexOf("\n["); start >= 0; start = text.indexOf("\n[", start + 1)) {
        const int end = text.indexOf(']', start);
        if (end >= 0)
            m_sections.append(groupOf(text.mid(start + 2, end - start - 2)));
    }
}

bool StoreOpeningJob::step()
{
    if (m_at == m_sections.size())
        return false;
    const QString& group = m_sections.at(m_at++);
    g_globalSettings->contains(group.isEmpty() ? QStringLiteral("x") : group + QLatin1String("/x"));
    return true;
}
