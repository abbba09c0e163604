#pragma once

#include <QByteArray>
#include <QFile>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

/// A disk that is soon full, seen by one process alone.
namespace SmallDisk {

inline bool writeTo(const char* path, const QByteArray& text)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/// In a namespace of users of its own, a process may mount what it likes.
inline bool becomeAdministrator()
{
    const QByteArray user = QByteArray::number(geteuid());
    return unshare(CLONE_NEWUSER) == 0 && writeTo("/proc/self/setgroups", "deny") &&
           writeTo("/proc/self/uid_map", "0 " + user + " 1");
}

/// Puts a disk of this many bytes onto a folder. For a forked process, which ends with it; false
/// where the system does not let it.
inline bool mount(const QByteArray& folder, int bytes)
{
    const QByteArray options = "size=" + QByteArray::number(bytes);
    return (geteuid() == 0 || becomeAdministrator()) && unshare(CLONE_NEWNS) == 0 &&
           ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("none", folder.constData(), "tmpfs", 0, options.constData()) == 0;
}

/// Leaves no room on the disk of this folder.
inline void fill(const QByteArray& folder)
{
    QFile file(QFile::decodeName(folder + "/filling"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return;
    const QByteArray page(4096, 'x');
    while (file.write(page) == page.size()) {
    }
}

} // namespace SmallDisk
