#include "inspection/files/FileIdentity.h"

#include <QFile>

#include <sys/stat.h>
#include <tuple>

FileIdentity FileIdentity::of(const QString& path)
{
    FileIdentity found;
    struct stat status = {};
    if (path.isEmpty() || stat(QFile::encodeName(path).constData(), &status) != 0)
        return found;
    found.exists = true;
    found.device = status.st_dev;
    found.number = status.st_ino;
    found.size = status.st_size;
    found.seconds = status.st_mtim.tv_sec;
    found.nanoseconds = status.st_mtim.tv_nsec;
    return found;
}

bool FileIdentity::isSameFile(const FileIdentity& other) const
{
    return std::tie(exists, device, number) == std::tie(other.exists, other.device, other.number);
}

bool FileIdentity::operator==(const FileIdentity& other) const
{
    return isSameFile(other) && std::tie(size, seconds, nanoseconds) ==
                                    std::tie(other.size, other.seconds, other.nanoseconds);
}
