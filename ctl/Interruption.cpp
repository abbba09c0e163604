#include "ctl/Interruption.h"

#include "ctl/Failure.h"

#include <QCoreApplication>

#include <csignal>

namespace {

struct InterruptionTexts
{
    Q_DECLARE_TR_FUNCTIONS(Interruption)
};

volatile std::sig_atomic_t g_isAsked = 0;

void take(int /*signal*/)
{
    g_isAsked = 1;
}

} // namespace

// A pipe that is closed early and a file that grows too large are told by the call that writes.
void Interruption::note()
{
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
