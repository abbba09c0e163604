#include "Sample.h"

#include "platform/IPlatformServices.h"

namespace {

constexpr const wchar_t* path = L"Software/Sample"; // with "/": see RegOpenKeyExW

// A key that is closed when it is no longer needed.
class Key
{
public:
    Key(IPlatformRegisterManager& registry, HKEY parent, const wchar_t* subKey)
        : m_registry(registry)
    {
        registry.RegOpenKeyExW(parent, subKey, 0, MAXIMUM_ALLOWED, &m_handle);
    }
    ~Key() { m_registry.RegCloseKey(m_handle); }

    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    HKEY handle() const { return m_handle; }

private:
    IPlatformRegisterManager& m_registry;
    HKEY m_handle = nullptr;
};

// 0 where the value is not there.
DWORD number(IPlatformRegisterManager& registry, HKEY key, const wchar_t* name)
{
    DWORD value = 0;
    DWORD type = REG_NONE;
    DWORD size = sizeof(value);
    const DWORD status = registry.RegQueryValueExW(key, name, nullptr, &type,
                                                   reinterpret_cast<BYTE*>(&value), &size);
    return status == ERROR_SUCCESS && type == REG_DWORD ? value : 0;
}

} // namespace

// Creating a key gives no handle: the key is opened afterwards.
std::string sample::useRegistry(IPlatformServices& services)
{
    IPlatformRegisterManager& registry = *services.registerManager();
    HKEY* noHandle = nullptr;
    registry.RegCreateKeyW(HKEY_CURRENT_USER, path, noHandle);
    const Key key(registry, HKEY_CURRENT_USER, path);
    const DWORD starts = number(registry, key.handle(), L"Starts") + 1;
    registry.RegSetValueExW(key.handle(), L"Starts", 0, REG_DWORD,
                            reinterpret_cast<const BYTE*>(&starts), sizeof(starts));
    return "registry: started " + std::to_string(number(registry, key.handle(), L"Starts")) +
           " times, language " + std::to_string(number(registry, key.handle(), L"Language"));
}
