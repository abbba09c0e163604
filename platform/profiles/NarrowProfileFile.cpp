#include "platform/profiles/NarrowProfileFile.h"

#include "platform/profiles/FileRewrite.h"
#include "platform/profiles/NarrowProfile.h"
#include "platform/profiles/NarrowText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

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

bool isWaitedFor(mode_t mode)
{
    return S_ISFIFO(mode) || S_ISSOCK(mode);
}

// Devices that have no text, and take one, are files all the same. Intended: callers have always
// been able to write to those that take everything.
bool isEndlessDevice(const QByteArray& path)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return false;
    char byte = 0;
    const ssize_t size = ::read(descriptor, &byte, sizeof byte);
    const bool isEndless = size > 0 || (size < 0 && errno == EAGAIN);
    close(descriptor);
    return isEndless;
}

// A pipe is not even opened: that alone would wake who waits at its other end.
bool hasText(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (stat(name.constData(), &status) != 0)
        return true; // not there yet, or one that Qt alone knows
    return !isWaitedFor(status.st_mode) && !(S_ISCHR(status.st_mode) && isEndlessDevice(name));
}

} // namespace

NarrowProfileFile::NarrowProfileFile(const QString& path) : m_file(path) {}

bool NarrowProfileFile::open(QIODevice::OpenMode mode)
{
    const QString path = m_file.fileName();
    if (path.isEmpty() || !hasText(path) || !m_file.open(mode | QIODevice::Unbuffered))
        return false;
    m_foundStamp = stampOf(m_file.handle());
    return true;
}

bool NarrowProfileFile::read(const Receiver& receive)
{
    std::array<char, NarrowText::chunkSize> chunk;
    NarrowText text;
    qint64 size = 0;
    while ((size = m_file.read(chunk.data(), NarrowText::chunkSize)) > 0)
        receive(text.decoded(QByteArray::fromRawData(chunk.data(), static_cast<int>(size))));
    return size == 0;
}

std::optional<QString> NarrowProfileFile::text()
{
    if (m_file.size() > largestText)
        return std::nullopt;
    QString text;
    text.reserve(static_cast<int>(m_file.size()));
    const bool isRead = read([&text](const QString& piece) { text += piece; });
    return isRead ? std::make_optional(text) : std::nullopt;
}

void NarrowProfileFile::rewrite(const QByteArray& bytes)
{
    rewrite([&bytes](const NarrowOutput::Write& write) { write(bytes); });
}

void NarrowProfileFile::rewrite(NarrowProfile& profile)
{
    rewrite([&profile](const NarrowOutput::Write& write) {
        NarrowOutput output(write);
        profile.writeTo(output);
        output.finish();
    });
}

void NarrowProfileFile::rewrite(const Produce& produce)
{
    if (m_file.isSequential()) { // a device keeps no text, and has its stamp from others
        produce([this](const QByteArray& bytes) { m_file.write(bytes); });
        return;
    }
    replaceText(produce);
    advanceStamp();
    latestStamp = stampOf(m_file.handle());
}

// The text is made twice where it comes in several pieces: once to learn its size.
void NarrowProfileFile::replaceText(const Produce& produce)
{
    QByteArray first;
    qint64 size = 0;
    produce([&](const QByteArray& bytes) {
        first = size == 0 ? bytes : first;
        size += bytes.size();
    });
    FileRewrite rewrite(m_file, size);
    if (!rewrite.makeRoom())
        return;
    if (first.size() == size)
        rewrite.add(first);
    else
        produce([&rewrite](const QByteArray& bytes) { rewrite.add(bytes); });
    rewrite.finish();
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
