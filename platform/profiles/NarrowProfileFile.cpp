#include "platform/profiles/NarrowProfileFile.h"

#include "platform/profiles/NarrowText.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <sys/stat.h>
#include <thread>

namespace {

using std::chrono::milliseconds;
using namespace std::chrono_literals;

// The last modification, in the unit in which QSettings compares it; 0 when it cannot be told.
std::int64_t stampOf(int descriptor)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        return 0;
    return status.st_mtim.tv_sec * 1000 + status.st_mtim.tv_nsec / 1000000;
}

void setStamp(int descriptor, std::int64_t stamp)
{
    std::array<timespec, 2> times{}; // last access, last modification
    times[0].tv_nsec = UTIME_OMIT;
    times[1].tv_sec = stamp / 1000;
    times[1].tv_nsec = stamp % 1000 * 1000000;
    futimens(descriptor, times.data());
}

// The stamp of the last rewrite in this process. QSettings may still hold an earlier version of a
// file under a stamp given here, even if the file was removed or restored by others since.
std::int64_t latestStamp = 0;

// The stamp of the last rewrite, unless that file's lay so far ahead of this one that following it
// would lead away from the time of day.
std::int64_t latestBeside(std::int64_t stamp)
{
    constexpr std::int64_t farAhead = milliseconds(1h).count();
    return latestStamp < stamp + farAhead ? latestStamp : 0;
}

} // namespace

NarrowProfileFile::NarrowProfileFile(const QString& path) : m_file(path) {}

bool NarrowProfileFile::open(QIODevice::OpenMode mode)
{
    if (m_file.fileName().isEmpty() || !m_file.open(mode | QIODevice::Unbuffered))
        return false;
    m_foundStamp = stampOf(m_file.handle());
    return true;
}

QString NarrowProfileFile::text()
{
    std::array<char, NarrowText::chunkSize> chunk;
    NarrowText text;
    text.reserve(m_file.size());
    for (qint64 size = 0; (size = m_file.read(chunk.data(), NarrowText::chunkSize)) > 0;)
        text.append(QByteArray::fromRawData(chunk.data(), static_cast<int>(size)));
    return text.take();
}

// Overwrites and then cuts: at no time is the file empty, and file systems that flush a file which
// was emptied and written anew have no reason to.
void NarrowProfileFile::rewrite(const QByteArray& bytes)
{
    if (m_file.isSequential()) { // a device, which keeps no text and has its stamp from others
        m_file.write(bytes);
        return;
    }
    m_file.seek(0);
    if (m_file.write(bytes) == bytes.size())
        m_file.resize(bytes.size());
    advanceStamp();
    latestStamp = stampOf(m_file.handle());
}

// QSettings, which reads the same files for the wide calls, takes a file of the same size and the
// same modification time for unchanged, but the clocks of file systems tick in steps of several
// milliseconds. So the stamp moves on with each write, also past one that was moved before.
void NarrowProfileFile::advanceStamp()
{
    const int descriptor = m_file.handle();
    const std::int64_t former = std::max(m_foundStamp, latestBeside(stampOf(descriptor)));
    // Some file systems keep whole or even seconds only.
    for (const milliseconds step : {1ms, 1000ms, 2000ms}) {
        if (stampOf(descriptor) > former)
            return;
        setStamp(descriptor, former + step.count());
    }
    waitForStamp(former);
}

// Only the owner may choose a stamp. Others can wait until the clock ticks, but not until it comes
// to a stamp that lies far ahead: then it is enough to differ from the one found.
void NarrowProfileFile::waitForStamp(std::int64_t former)
{
    constexpr int patience = 50; // milliseconds
    const int descriptor = m_file.handle();
    const bool comes = former < stampOf(descriptor) + patience;
    const auto stands = [this, descriptor, former, comes] {
        const std::int64_t stamp = stampOf(descriptor);
        return comes ? stamp <= former : stamp == m_foundStamp;
    };
    for (int tries = 0; tries < patience && stands(); ++tries) {
        std::this_thread::sleep_for(1ms);
        futimens(descriptor, nullptr);
    }
}
