#include "platform/files/FileStamp.h"

#include <QFile>

#include <ctime>
#include <sys/stat.h>
#include <tuple>

namespace {

constexpr qint64 second = 1000000000;    // nanoseconds
constexpr qint64 longestStep = 20000000; // of the clock that files are stamped with

qint64 nanoseconds(const timespec& time)
{
    return qint64{time.tv_sec} * second + time.tv_nsec;
}

qint64 now()
{
    timespec time = {};
    clock_gettime(CLOCK_REALTIME, &time);
    return nanoseconds(time);
}

} // namespace

FileStamp FileStamp::of(const QString& path)
{
    FileStamp stamp;
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return stamp;
    stamp.m_exists = true;
    stamp.m_device = status.st_dev;
    stamp.m_number = status.st_ino;
    stamp.m_size = status.st_size;
    stamp.m_written = nanoseconds(status.st_mtim);
    stamp.m_changed = nanoseconds(status.st_ctim);
    const qint64 age = now() - stamp.m_changed;
    stamp.m_isSure = age < 0 || age > longestStep; // another machine's clock may be ahead
    return stamp;
}

bool FileStamp::isSameFile(const FileStamp& other) const
{
    return std::tie(m_exists, m_device, m_number) ==
           std::tie(other.m_exists, other.m_device, other.m_number);
}

bool operator==(const FileStamp& a, const FileStamp& b)
{
    return a.isSameFile(b) && std::tie(a.m_size, a.m_written, a.m_changed) ==
                                  std::tie(b.m_size, b.m_written, b.m_changed);
}
