#include "inspection/host/LoadTrial.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int longestMessage = 4096; // bytes: a pipe takes them at once
constexpr useconds_t turn = 1000;    // microseconds
constexpr char loadedMark = '+';     // before nothing
constexpr char refusedMark = '-';    // before the loader's message

struct HostTrial
{
    Q_DECLARE_TR_FUNCTIONS(HostTrial)
};

// Crashes are to end the process as they would end one without handlers, and leave no dump.
void becomePlain()
{
    for (const int signal : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT, SIGTRAP, SIGTERM, SIGINT})
        std::signal(signal, SIG_DFL);
    const rlimit none = {0, 0};
    setrlimit(RLIMIT_CORE, &none);
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    if (nothing >= 0)
        dup2(nothing, STDIN_FILENO);
}

void report(int pipe, char mark, const char* message)
{
    const QByteArray text = (mark + QByteArray(message)).left(longestMessage);
    // Where this fails, there is nobody left to be told.
    static_cast<void>(!write(pipe, text.constData(), static_cast<std::size_t>(text.size())));
}

[[noreturn]] void loadInChild(const char* path, int pipe)
{
    becomePlain();
    if (dlopen(path, RTLD_NOW | RTLD_LOCAL)) {
        report(pipe, loadedMark, "");
    } else {
        const char* message = dlerror();
        report(pipe, refusedMark, message ? message : "");
    }
    _exit(0);
}

// Until the child has written, or is gone, or the time is over. What the library has started itself
// may keep the pipe open: so the end of the child alone is not waited for.
QByteArray readMessage(int pipe, Clock::time_point end)
{
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd event = {pipe, POLLIN, 0};
        const int count = poll(&event, 1, static_cast<int>(std::max<long>(left, 0)));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return QByteArray();
        std::array<char, longestMessage> message = {};
        const ssize_t size = read(pipe, message.data(), message.size());
        return QByteArray(message.data(), static_cast<int>(std::max<ssize_t>(size, 0)));
    }
}

// True where the child has ended by itself before the time was over. The pipe closes a moment
// before that, or earlier where the library closes what it does not know.
bool isOver(pid_t child, int& status, Clock::time_point end)
{
    for (;;) {
        if (waitpid(child, &status, WNOHANG) == child)
            return true;
        if (Clock::now() >= end)
            return false;
        usleep(turn);
    }
}

// With whatever the library has started.
void endAll(pid_t child, bool isReaped)
{
    kill(-child, SIGKILL);
    if (isReaped)
        return;
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
}

LoadTrial ended(int status)
{
    if (WIFSIGNALED(status))
        return {LoadTrial::Outcome::Crashed, QString::fromLocal8Bit(strsignal(WTERMSIG(status)))};
    return {LoadTrial::Outcome::Ended, QString::number(WEXITSTATUS(status))};
}

LoadTrial answered(const QByteArray& message)
{
    if (message.startsWith(loadedMark))
        return {LoadTrial::Outcome::Loaded, QString()};
    return {LoadTrial::Outcome::Refused, QString::fromLocal8Bit(message.mid(1))};
}

LoadTrial watchChild(pid_t child, int pipe, std::chrono::milliseconds limit)
{
    const Clock::time_point end = Clock::now() + limit;
    const QByteArray message = readMessage(pipe, end);
    int status = 0;
    const bool isGone = message.isEmpty() && isOver(child, status, end);
    endAll(child, isGone);
    if (!message.isEmpty())
        return answered(message);
    if (isGone)
        return ended(status);
    const double seconds = std::chrono::duration<double>(limit).count();
    return {LoadTrial::Outcome::Hung, QString::number(seconds)};
}

LoadTrial notTried()
{
    return {LoadTrial::Outcome::NotTried, QString::fromLocal8Bit(std::strerror(errno))};
}

} // namespace

LoadTrial tryLoading(const QString& path, std::chrono::milliseconds limit)
{
    // The loader would look for a name without a folder elsewhere.
    const QByteArray name = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    int pipe[2] = {};
    if (pipe2(pipe, O_CLOEXEC) != 0)
        return notTried();
    const pid_t child = fork();
    if (child == 0)
        loadInChild(name.constData(), pipe[1]);
    close(pipe[1]);
    LoadTrial trial = child < 0 ? notTried() : watchChild(child, pipe[0], limit);
    close(pipe[0]);
    return trial;
}

QString LoadTrial::text() const
{
    switch (outcome) {
    case Outcome::Loaded: return HostTrial::tr("The library was loaded.");
    case Outcome::Refused: return HostTrial::tr("The library was not loaded: %1").arg(detail);
    case Outcome::Crashed:
        return HostTrial::tr("The process crashed while it loaded the library: %1").arg(detail);
    case Outcome::Ended:
        return HostTrial::tr("The library ended the process with status %1 while it was loaded.")
            .arg(detail);
    case Outcome::Hung:
        return HostTrial::tr("Loading the library was not finished within %1 seconds.").arg(detail);
    default: return HostTrial::tr("The library could not be tried: %1").arg(detail);
    }
}
