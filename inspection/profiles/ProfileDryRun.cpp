#include "inspection/profiles/ProfileDryRun.h"

#include "inspection/profiles/NarrowRewriting.h"

#include <QFile>

#include <utility>

ProfileDryRun::ProfileDryRun(const QString& file, const ProfileChange& change)
    : m_change(change), m_loading(file), m_writing(copiedFile(), change)
{
}

QString ProfileDryRun::copiedFile() const
{
    return m_folder.filePath(QStringLiteral("written.ini"));
}

bool ProfileDryRun::step()
{
    if (!std::exchange(m_isCopied, true))
        return copy();
    if (m_writing.step())
        return true;
    if (!isReadBack())
        return false;
    if (m_loading.step())
        return true;
    if (std::exchange(m_isCompared, true))
        return false;
    compare();
    return true;
}

bool ProfileDryRun::copy()
{
    if (!document().exists())
        return true;
    return QFile::copy(file(), copiedFile()) &&
           QFile::setPermissions(copiedFile(), QFile::ReadOwner | QFile::WriteOwner);
}

void ProfileDryRun::compare()
{
    if (m_change.family == ProfileFamily::Narrow)
        m_changes = NarrowRewriting(file()).changes();
}

bool ProfileDryRun::isHarmless() const
{
    return document().lostLines(m_change.family).empty() && m_changes.isEmpty();
}
