#include "trace/replay/ReplayProcess.h"

#include "inspection/registry/StoreReplacement.h"
#include "platform/PlatformServicesImp.h"
#include "trace/replay/ReplayFolder.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <poll.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace replay {

namespace {

constexpr int pauseTime = 100; // milliseconds

void sendAll(int descriptor, const QByteArray& bytes)
{
    qint64 sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count = write(descriptor, bytes.constData() + sent,
                                    static_cast<std::size_t>(bytes.size() - sent));
        if (count < 0 && errno != EINTR)
            return;
        sent += qMax<ssize_t>(count, 0);
    }
}

// The status with which a process ended.
int waitFor(pid_t process)
{
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

// Ends a process that is no longer wanted, unless it has been waited for.
class Child
{
public:
    explicit Child(pid_t process) : m_process(process) {}
    ~Child()
    {
        if (m_process <= 0)
            return;
        kill(m_process, SIGKILL);
        waitFor(m_process);
    }

    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    int end()
    {
        const pid_t process = m_process;
        m_process = 0;
        return waitFor(process);
    }

private:
    pid_t m_process;
};

} // namespace

// What both processes see: a pipe, and a number in memory that outlives a crash.
struct ReplayProcess::Exchange
{
    using Number = std::atomic<qint64>;

    Exchange()
    {
        void* const shared = mmap(nullptr, sizeof(Number), PROT_READ | PROT_WRITE,
                                  MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (shared != MAP_FAILED && pipe2(pipe, O_CLOEXEC) == 0)
            current = new (shared) Number(0);
    }
    ~Exchange()
    {
        closeEnd(0);
        closeEnd(1);
        if (current)
            munmap(current, sizeof(Number));
    }

    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;

    void closeEnd(int end)
    {
        if (pipe[end] >= 0)
            close(pipe[end]);
        pipe[end] = -1;
    }

    int pipe[2] = {-1, -1};
    Number* current = nullptr; ///< the call that is being performed
};

ReplayProcess::ReplayProcess(trace::TraceFile& file, ReplayFolder& folder)
    : m_file(file),
      m_folder(folder),
      m_makeServices([] { return std::make_unique<PlatformServicesImp>(); }),
      m_pause([] {}),
      m_isChosen([](const trace::CallEntry& /*call*/) { return true; })
{
}

bool ReplayProcess::fail()
{
    m_error = tr("No process can be started for the replay: %1")
                  .arg(QString::fromLocal8Bit(std::strerror(errno)));
    return false;
}

bool ReplayProcess::run()
{
    m_report = {};
    if (!m_folder.isValid())
        return fail();
    Exchange exchange;
    const pid_t process = exchange.current ? fork() : -1;
    if (process < 0)
        return fail();
    if (process == 0)
        replay(exchange);
    Child child(process);
    exchange.closeEnd(1);
    const QByteArray bytes = receive(exchange.pipe[0]);
    const int status = child.end();
    if (m_report.fromBytes(bytes))
        return true;
    m_report = {};
    m_report.crashedIn = exchange.current->load();
    m_report.signal = WIFSIGNALED(status) ? WTERMSIG(status) : SIGABRT;
    return true;
}

// In the other process, which ends without the destructors of what it has in common with this one.
void ReplayProcess::replay(Exchange& exchange)
{
    exchange.closeEnd(0);
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        std::signal(number, SIG_DFL);
    QByteArray bytes;
    {
        const StoreReplacement store(m_folder.storePath());
        const std::unique_ptr<IPlatformServices> services = m_makeServices();
        Player player(m_file, *services, m_folder);
        player.watch(m_watched);
        player.setProgress([&exchange](qint64 number) { exchange.current->store(number); });
        player.perform(m_isChosen);
        bytes = player.report().toBytes();
    }
    sendAll(exchange.pipe[1], bytes);
    _exit(0);
}

QByteArray ReplayProcess::receive(int descriptor)
{
    QByteArray bytes;
    char piece[65536];
    for (;;) {
        m_pause();
        pollfd waiting = {descriptor, POLLIN, 0};
        if (poll(&waiting, 1, pauseTime) <= 0)
            continue;
        const ssize_t count = read(descriptor, piece, sizeof piece);
        if (count == 0 || (count < 0 && errno != EINTR))
            return bytes;
        bytes.append(piece, static_cast<int>(qMax<ssize_t>(count, 0)));
    }
}

} // namespace replay
