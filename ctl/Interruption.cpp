#include "ctl/Interruption.h"

#include "ctl/Failure.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <iterator>
#include <poll.h>
#include <unistd.h>

namespace {

struct InterruptionTexts
{
    Q_DECLARE_TR_FUNCTIONS(Interruption)
};

volatile std::sig_atomic_t g_isAsked = 0;
int g_wakers[2] = {-1, -1}; // a pipe, so that a signal that comes right before `poll` ends it too

void take(int /*signal*/)
{
    const int before = errno;
    g_isAsked = 1;
    static_cast<void>(::write(g_wakers[1], "", 1) < 0);
    errno = before;
}

} // namespace

// A pipe that is closed early and a file that grows too large are told by the call that writes.
void Interruption::note()
{
    // Without the pipe, which is as good as impossible, reading is only interrupted later.
    [[maybe_unused]] const int made = pipe2(g_wakers, O_CLOEXEC | O_NONBLOCK);
    struct sigaction action
    {
    };
    action.sa_handler = take;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaction(signal, &action, nullptr);
    action.sa_handler = SIG_IGN;
    for (const int signal : {SIGPIPE, SIGXFSZ})
        sigaction(signal, &action, nullptr);
}

bool Interruption::isAsked()
{
    return g_isAsked != 0;
}

void Interruption::check()
{
    if (isAsked())
        throw Failure(InterruptionTexts::tr("Interrupted: nothing more has been done."));
}

qint64 Interruption::read(int descriptor, char* data, qint64 size)
{
    ssize_t count = -1;
    do {
        pollfd sources[] = {{descriptor, POLLIN, 0}, {g_wakers[0], POLLIN, 0}};
        static_cast<void>(poll(sources, std::size(sources), -1));
        if (isAsked()) {
            errno = EINTR;
            return -1;
        }
        count = ::read(descriptor, data, static_cast<std::size_t>(size));
    } while (count < 0 && errno == EINTR);
    return count;
}
