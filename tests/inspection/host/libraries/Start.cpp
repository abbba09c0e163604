// Misbehaves while it is loaded, as the build says.

#include <csignal>
#include <cstdlib>
#include <unistd.h>

namespace {

[[gnu::constructor]] void start()
{
#if defined(START_CRASHES)
    std::raise(SIGSEGV);
#elif defined(START_EXITS)
    _exit(3);
#else
    for (;;)
        pause();
#endif
}

} // namespace
