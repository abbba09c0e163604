// The standalone stand-in for the platform-base library: enough of it for the application to run,
// and for its services to be used, where the maker's libraries are not installed.

#include "host/HostLibraries.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dlfcn.h>

QSettings* g_globalSettings = nullptr;

namespace {

IPlatformServices* g_services = nullptr;

// What a store has written is text without control characters; an end in the middle of writing, or
// another program, leaves others.
bool isDamaged(const QByteArray& bytes)
{
    constexpr unsigned char firstPrintable = 0x20;
    return std::any_of(bytes.begin(), bytes.end(), [](char byte) {
        return static_cast<unsigned char>(byte) < firstPrintable && byte != '\n' && byte != '\r' &&
               byte != '\t';
    });
}

// Of each content there is one copy, however often the program is started.
QString copyName(const QString& path, const QByteArray& bytes)
{
    constexpr int digits = 8;
    const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex();
    return path + QStringLiteral(".damaged-") + QString::fromLatin1(hash.left(digits));
}

// The first saving drops whatever the store cannot read.
void keepAside(const QSettings& settings)
{
    QFile file(settings.fileName());
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = file.readAll();
    if (settings.status() == QSettings::FormatError || isDamaged(bytes))
        file.copy(copyName(file.fileName(), bytes));
}

// The store behind g_globalSettings. No INI codec is set: with one, QSettings would drop characters
// beyond the BMP on writing; without, it escapes them losslessly.
class RegistryStore
{
public:
    RegistryStore() : m_settings(path(), QSettings::IniFormat)
    {
        keepAside(m_settings);
        g_globalSettings = &m_settings;
    }
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
