// What the application calls of a platform-base library, and where the library's own work begins.

#include "Sample.h"

#include "host/HostLibraries.h"
#include "platform/IPlatformServices.h"

#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>

QSettings* g_globalSettings = nullptr;

namespace {

IPlatformServices* g_services = nullptr;

// The store behind the registry. As a local static it is destroyed before what it needs of Qt, and
// saves itself then.
class Store
{
public:
    Store()
        : m_settings(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                         QStringLiteral("/registry.ini"),
                     QSettings::IniFormat)
    {
        g_globalSettings = &m_settings;
    }
    ~Store() { g_globalSettings = nullptr; }

    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

private:
    QSettings m_settings;
};

void work()
{
    for (const auto use :
         {sample::useRegistry, sample::useProfiles, sample::useFiles, sample::useFonts,
          sample::useBitmap, sample::useQuestion, sample::useStrings})
        std::fprintf(stderr, "sample: %s\n", use(*g_services).c_str());
}

} // namespace

// The register manager captures the store when it is asked for, so the store comes first. The work
// waits for the event loop: the application has not shown its window yet.
void setPlatformServices(IPlatformServices* services)
{
    g_services = services;
    static const Store store;
    QTimer::singleShot(0, work);
}

// A library that kept track of all strings would do it here.
void updateCStringManagerData(const void* /*string*/) {}

int strcpy_s(char* destination, int size, const char* source)
{
    if (!destination || size <= 0)
        return EINVAL;
    destination[0] = '\0';
    if (!source)
        return EINVAL;
    const std::size_t length = std::strlen(source);
    if (length >= static_cast<std::size_t>(size))
        return ERANGE;
    std::memcpy(destination, source, length + 1);
    return 0;
}

// To dlsym null would be a module too: every library of the process.
void* GetProcAddress(HINSTANCE module, const char* name)
{
    return module && name ? dlsym(module, name) : nullptr;
}
