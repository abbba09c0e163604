#include "inspection/profiles/ProfilePresence.h"

#include <QFile>

#include <sys/stat.h>

namespace {

bool find(const QString& path, struct stat& status)
{
    return stat(QFile::encodeName(path).constData(), &status) == 0;
}

} // namespace

// A file that has gone has been there all the same: reading it again does not change that.
void ProfilePresence::note(const QString& path)
{
    if (path != m_path)
        forget();
    m_path = path;
    struct stat status = {};
    if (!find(path, status))
        return;
    m_wasThere = true;
    m_device = status.st_dev;
    m_number = status.st_ino;
}

void ProfilePresence::forget()
{
    m_wasThere = false;
}

ProfilePresence::Fate ProfilePresence::fate(const QString& path) const
{
    if (!m_wasThere || path != m_path)
        return Fate::Same;
    struct stat status = {};
    if (!find(path, status))
        return Fate::Deleted;
    return status.st_dev == m_device && status.st_ino == m_number ? Fate::Same : Fate::Replaced;
}
