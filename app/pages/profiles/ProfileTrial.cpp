#include "app/pages/profiles/ProfileTrial.h"

#include "app/pages/profiles/NarrowRewriting.h"

#include <QFile>

#include <utility>

ProfileTrial::ProfileTrial(const QString& file, const ProfileChange& change)
    : m_change(change), m_loading(file), m_writing(copiedFile(), change)
{
}

QString ProfileTrial::copiedFile() const
{
    return m_folder.filePath(QStringLiteral("written.ini"));
}

bool ProfileTrial::step()
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

bool ProfileTrial::copy()
{
    if (!document().exists())
        return true;
    return QFile::copy(file(), copiedFile()) &&
           QFile::setPermissions(copiedFile(), QFile::ReadOwner | QFile::WriteOwner);
}

void ProfileTrial::compare()
{
    if (m_change.family == ProfileFamily::Narrow)
        m_changes = NarrowRewriting(file()).changes();
}

bool ProfileTrial::isHarmless() const
{
    return document().lostLines(m_change.family).empty() && m_changes.isEmpty();
}
