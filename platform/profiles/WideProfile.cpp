#include "platform/profiles/WideProfile.h"

#include <QFile>
#include <QStringList>

#include <cstddef>
#include <sys/mman.h>
#include <sys/stat.h>

namespace {

// Below that the memory is not asked: a process that has no more of it ends anyway.
constexpr off_t largeFile = off_t{1024} * 1024;

bool hasMemory(std::size_t bytes)
{
    void* memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return memory != MAP_FAILED && munmap(memory, bytes) == 0;
}

// While it is constructed, QSettings keeps a file twice, and crashes where memory is refused.
bool isHeld(off_t size)
{
    constexpr std::size_t reserve = std::size_t{8} * 1024 * 1024;
    return size < largeFile || (size <= WideProfile::largestFile &&
                                hasMemory(static_cast<std::size_t>(size) * 2 + reserve));
}

} // namespace

// Files that are missing or cannot be opened, and folders, are left to QSettings.
WideProfile::WideProfile(const wchar_t* file)
{
    const QString path = QString::fromWCharArray(file);
    struct stat status = {};
    const bool isFile =
        stat(QFile::encodeName(path).constData(), &status) == 0 && !S_ISDIR(status.st_mode);
    m_isDevice = isFile && (S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode));
    if (isFile && (!S_ISREG(status.st_mode) || !isHeld(status.st_size)))
        return;
    m_isLarge = isFile && status.st_size >= largeFile;
    m_settings.emplace(path, QSettings::IniFormat);
    m_settings->setIniCodec("utf-8"); // before the first read: what is read stays as it is
}

// A large file is parsed first: while QSettings has the file locked, memory that is refused would
// end the program.
void WideProfile::write(const std::vector<std::pair<QString, QString>>& entries)
{
    if (m_isLarge)
        static_cast<void>(m_settings->childGroups()); // which only all sections tell
    for (const auto& [name, value] : entries)
        m_settings->setValue(name, value);
    m_settings->sync();
}
