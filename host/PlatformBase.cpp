// The standalone stand-in for the platform-base library: enough of it for the application to run,
// and for its services to be used, where the maker's libraries are not installed.

#include "host/HostLibraries.h"

#include <QSettings>
#include <QStandardPaths>

#include <cerrno>
#include <cstring>
#include <dlfcn.h>

QSettings* g_globalSettings = nullptr;

namespace {

IPlatformServices* g_services = nullptr;

// The store behind g_globalSettings. No INI codec is set: with one, QSettings would drop characters
// beyond the BMP on writing; without, it escapes them losslessly.
class RegistryStore
{
public:
    RegistryStore() : m_settings(path(), QSettings::IniFormat) { g_globalSettings = &m_settings; }
    ~RegistryStore() { g_globalSettings = nullptr; }

    RegistryStore(const RegistryStore&) = delete;
    RegistryStore& operator=(const RegistryStore&) = delete;

private:
    static QString path()
    {
        return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
               QStringLiteral("/registry.ini");
    }

    QSettings m_settings;
};

} // namespace

void setPlatformServices(IPlatformServices* services)
{
    g_services = services;
    // A local static is constructed after everything in QtCore that it uses, so that at exit it can
    // still save itself before QtCore takes those down.
    static const RegistryStore store;
}

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

void* GetProcAddress(HINSTANCE module, const char* name)
{
    // To dlsym null is a module too: every library of the process.
    return module && name ? dlsym(module, name) : nullptr;
}
