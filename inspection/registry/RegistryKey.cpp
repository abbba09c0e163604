#include "inspection/registry/RegistryKey.h"

#include "platform/PlatformServicesImp.h"

#include <climits>
#include <cstring>

namespace {

constexpr int usualSize = 512;

// Null until the service is there.
IPlatformRegisterManager* manager()
{
    return g_PlatformServices.registerManager();
}

unsigned char* bytes(QByteArray& data)
{
    return reinterpret_cast<unsigned char*>(data.data());
}

} // namespace

RegistryKey::RegistryKey(const QString& path)
{
    if (!manager())
        return;
    if (path.isEmpty()) {
        m_key = HKEY_CURRENT_USER;
        return;
    }
    m_owned = manager()->RegOpenKeyExW(HKEY_CURRENT_USER, path.toStdWString().c_str(), 0,
                                       MAXIMUM_ALLOWED, &m_key) == ERROR_SUCCESS;
}

RegistryKey::~RegistryKey()
{
    if (m_owned)
        manager()->RegCloseKey(m_key);
}

// Most values fit at once; what does not is measured first.
RegistryReading RegistryKey::read(const QString& name) const
{
    RegistryReading reading;
    if (!m_key)
        return reading;
    const std::wstring wide = name.toStdWString();
    const auto readInto = [this, &wide, &reading](int room) {
        reading.data.resize(room);
        auto size = static_cast<unsigned int>(room);
        reading.readable = manager()->RegQueryValueExW(m_key, wide.c_str(), nullptr, &reading.type,
                                                       bytes(reading.data), &size) == ERROR_SUCCESS;
        reading.data.truncate(reading.readable ? static_cast<int>(size) : 0);
        return reading.readable;
    };
    unsigned int size = UINT_MAX; // with no buffer, large enough for the length of anything
    if (!readInto(usualSize) &&
        manager()->RegQueryValueExW(m_key, wide.c_str(), nullptr, &reading.type, nullptr, &size) ==
            ERROR_SUCCESS)
        readInto(static_cast<int>(size + sizeof(wchar_t))); // texts demand room for a terminator
    return reading;
}

RegistryReading RegistryKey::readListed(const QString& name) const
{
    RegistryReading reading;
    if (!m_key)
        return reading;
    const std::wstring wide = name.toStdWString();
    int size = INT_MAX;
    if (manager()->RegQueryValueW(m_key, wide.c_str(), nullptr, &size) != ERROR_SUCCESS)
        return reading;
    reading.data.fill('\0', size + static_cast<int>(sizeof(wchar_t)));
    size = reading.data.size();
    // A byte array's storage is aligned for the 4-byte characters that the call is declared with.
    auto* buffer = reinterpret_cast<wchar_t*>(reading.data.data());
    reading.readable =
        manager()->RegQueryValueW(m_key, wide.c_str(), buffer, &size) == ERROR_SUCCESS;
    reading.data.truncate(reading.readable ? size : 0);
    return reading;
}

unsigned int RegistryKey::set(const QString& name, unsigned int type, const QByteArray& data) const
{
    if (!m_key)
        return ERROR_INVALID_FUNCTION;
    QByteArray copy = data;
    return manager()->RegSetValueExW(m_key, name.toStdWString().c_str(), 0, type, bytes(copy),
                                     static_cast<unsigned int>(copy.size()));
}

unsigned int RegistryKey::removeValue(const QString& name) const
{
    return m_key ? manager()->RegDeleteValueW(m_key, name.toStdWString().c_str())
                 : ERROR_INVALID_FUNCTION;
}

// The handle never comes back from this call, so nothing has to be closed.
unsigned int RegistryKey::createKey(const QString& name) const
{
    if (!m_key)
        return ERROR_INVALID_FUNCTION;
    HKEY unused = nullptr;
    HKEY* result = &unused;
    return manager()->RegCreateKeyW(m_key, name.toStdWString().c_str(), result);
}

unsigned int RegistryKey::removeKey(const QString& name) const
{
    return m_key ? manager()->RegDeleteKeyW(m_key, name.toStdWString().c_str())
                 : ERROR_INVALID_FUNCTION;
}

QString registryText(const QByteArray& data)
{
    std::u32string characters(static_cast<std::size_t>(data.size()) / sizeof(char32_t), U'\0');
    std::memcpy(characters.data(), data.constData(), characters.size() * sizeof(char32_t));
    return QString::fromStdU32String(characters);
}

QByteArray registryTextData(const QString& text)
{
    const std::u32string characters = text.toStdU32String();
    return QByteArray(reinterpret_cast<const char*>(characters.c_str()),
                      static_cast<int>((characters.size() + 1) * sizeof(char32_t)));
}
