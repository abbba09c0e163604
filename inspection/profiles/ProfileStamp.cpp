#include "inspection/profiles/ProfileStamp.h"

#include <QFile>

#include <sys/stat.h>
#include <tuple>

ProfileStamp ProfileStamp::of(const QString& path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    ProfileStamp stamp;
    stamp.exists = true;
    stamp.device = status.st_dev;
    stamp.inode = status.st_ino;
    stamp.size = status.st_size;
    stamp.seconds = status.st_mtim.tv_sec;
    stamp.nanoseconds = status.st_mtim.tv_nsec;
    return stamp;
}

bool ProfileStamp::operator==(const ProfileStamp& other) const
{
    const auto all = [](const ProfileStamp& stamp) {
        return std::tie(stamp.exists, stamp.device, stamp.inode, stamp.size, stamp.seconds,
                        stamp.nanoseconds);
    };
    return all(*this) == all(other);
}
