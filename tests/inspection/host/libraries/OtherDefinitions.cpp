// Defines host functions, two of them otherwise than the application asks for them.

class IPlatformServices;

[[gnu::visibility("default")]] void updateCStringManagerData(const void*) {}
extern "C" [[gnu::visibility("default")]] void setPlatformServices(IPlatformServices*) {}
[[gnu::visibility("default")]] void* GetProcAddress(void* module, const wchar_t*)
{
    return module;
}
