#include "tests/platform/files/FileTree.h"

#include <QDir>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace {

void check(int result)
{
    if (result < 0)
        throw std::system_error(errno, std::generic_category());
}

} // namespace

FileTree::FileTree() : m_previous(QDir::currentPath()) {}

FileTree::~FileTree()
{
    QDir::setCurrent(m_previous);
    // Not left to QTemporaryDir, which does not see names that are not text.
    for (const auto& entry : std::filesystem::directory_iterator(native("").toStdString()))
        std::filesystem::remove_all(entry);
}

QByteArray FileTree::native(const QByteArray& name) const
{
    return m_folder.path().toUtf8() + '/' + name;
}

QString FileTree::path(const QByteArray& name) const
{
    return QString::fromUtf8(native(name));
}

std::wstring FileTree::wide(const QByteArray& name) const
{
    return path(name).toStdWString();
}

void FileTree::file(const QByteArray& name, qint64 size) const
{
    const int descriptor = open(native(name).constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
    check(descriptor);
    const int result = size > 0 ? ftruncate(descriptor, size) : 0;
    close(descriptor);
    check(result);
}

void FileTree::folder(const QByteArray& name) const
{
    check(mkdir(native(name).constData(), 0755));
}

void FileTree::link(const QByteArray& name, const QByteArray& target) const
{
    check(symlink(target.constData(), native(name).constData()));
}

void FileTree::pipe(const QByteArray& name) const
{
    check(mkfifo(native(name).constData(), 0644));
}

void FileTree::hardLink(const QByteArray& name, const QByteArray& target) const
{
    check(::link(native(target).constData(), native(name).constData()));
}

bool FileTree::holds(const QByteArray& name) const
{
    struct stat status;
    return lstat(native(name).constData(), &status) == 0;
}

void FileTree::enter() const
{
    QDir::setCurrent(m_folder.path());
}

int runUnprivileged(const QString& directory, const std::function<int()>& work)
{
    constexpr int failed = 255;
    constexpr uid_t nobody = 65534;
    const pid_t child = fork();
    if (child == 0) {
        // Entered first: the folders above it need not be open to that user.
        const bool entered = QDir::setCurrent(directory);
        const bool bound = geteuid() != 0 || setuid(nobody) == 0;
        _exit(entered && bound ? work() : failed);
    }
    int status = 0;
    check(waitpid(child, &status, 0));
    return WIFEXITED(status) ? WEXITSTATUS(status) : failed;
}
