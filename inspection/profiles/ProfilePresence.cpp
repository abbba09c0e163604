#include "inspection/profiles/ProfilePresence.h"

// A file that has gone has been there all the same: reading it again does not change that.
void ProfilePresence::note(const QString& path)
{
    if (path != m_path)
        forget();
    m_path = path;
    const ProfileStamp stamp = ProfileStamp::of(path);
    if (stamp.exists)
        m_stamp = stamp;
}

void ProfilePresence::forget()
{
    m_stamp = {};
}

ProfilePresence::Fate ProfilePresence::fate(const QString& path) const
{
    if (!m_stamp.exists || path != m_path)
        return Fate::Same;
    const ProfileStamp stamp = ProfileStamp::of(path);
    if (!stamp.exists)
        return Fate::Deleted;
    const bool isSame = stamp.device == m_stamp.device && stamp.inode == m_stamp.inode;
    return isSame ? Fate::Same : Fate::Replaced;
}
