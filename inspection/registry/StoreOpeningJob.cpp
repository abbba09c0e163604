#include "inspection/registry/StoreOpeningJob.h"

#include "inspection/registry/RawStore.h"
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

StoreOpeningJob::StoreOpeningJob()
{
    if (!RawStore::exists())
        return;
    QFile file(RawStore::fileName());
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray text = '\n' + file.readAll();
    for (int at = text.indexOf("\n["); at >= 0; at = text.indexOf("\n[", at + 1))
        m_sections.append(groupAt(text, at + 1));
}

bool StoreOpeningJob::step()
{
    if (m_at == m_sections.size())
        return false;
    const QString& group = m_sections.at(m_at++);
    RawStore().contains(group.isEmpty() ? QStringLiteral("x") : group + QLatin1String("/x"));
    return true;
}
