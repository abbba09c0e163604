// What this library takes part in: the hand-over of the services, the unloading of libraries, the
// beginning and the end of the process.

#include "host/HostLibraries.h"
#include "trace/recorder/Modules.h"
#include "trace/recorder/ProgramTables.h"
#include "trace/recorder/Recording.h"
#include "trace/recorder/Tables.h"

#include <dlfcn.h>

namespace {

template <typename Function>
Function* nextFunction(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// A program whose own tables hold the services is recorded from its beginning on: with all callers,
// some call before the hand-over, and some make their own managers.
[[gnu::constructor]] void begin()
{
    const auto found = recorder::findProgramTables();
    if (found.empty())
        return;
    recorder::Recording::instance().begin();
    for (const recorder::ProgramTable& table : found)
        recorder::tables::replace(table.interface, table.slots);
}

// Runs behind the destructors of all static objects, which may still call the services.
[[gnu::destructor]] void end()
{
    recorder::Recording::instance().end();
}

} // namespace

void setPlatformServices(IPlatformServices* services)
{
    using Function = void(IPlatformServices*);
    recorder::Recording::instance().begin();
    recorder::tables::replaceIn(trace::Interface::Services, services);
    static Function* const next =
        nextFunction<Function>("_Z19setPlatformServicesP17IPlatformServices");
    if (next)
        next(services);
    recorder::Recording::instance().tellLibraries();
}

/// Addresses may belong to another library afterwards.
extern "C" [[gnu::visibility("default")]] int dlclose(void* handle)
{
    static auto* const next = nextFunction<int(void*)>("dlclose");
    const int result = next(handle);
    recorder::Modules::instance().forget();
    return result;
}
