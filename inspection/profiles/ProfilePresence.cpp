#include "inspection/profiles/ProfilePresence.h"

// A file that has gone has been there all the same: reading it again does not change that.
void ProfilePresence::note(const QString& path)
{
    if (path != m_path)
        forget();
    m_path = path;
    const FileStamp file = FileStamp::of(path);
    if (file.exists())
        m_file = file;
}

void ProfilePresence::forget()
{
    m_file = {};
}

ProfilePresence::Fate ProfilePresence::fate(const QString& path) const
{
    if (!m_file.exists() || path != m_path)
        return Fate::Same;
    const FileStamp file = FileStamp::of(path);
    if (!file.exists())
        return Fate::Deleted;
    return file.isSameFile(m_file) ? Fate::Same : Fate::Replaced;
}
