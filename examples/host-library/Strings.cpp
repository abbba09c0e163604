#include "Sample.h"

#include "host/HostLibraries.h"
#include "platform/IPlatformServices.h"

#include <array>
#include <dlfcn.h>

namespace {

constexpr unsigned int greeting = 1;
constexpr int simplifiedChinese = 2052;

} // namespace

// The texts of this module. The service finds the function by this name, so it is exported
// unmangled.
extern "C" [[gnu::visibility("default")]] const wchar_t* loadstring(unsigned int id)
{
    if (id != greeting)
        return nullptr;
    return GetCurrentOrbxLanguageId() == simplifiedChinese ? L"ni hao" : L"hello";
}

// A module is what dlopen gives. Asked for a library that is loaded already, it only counts one
// more user of it.
std::string sample::useStrings(IPlatformServices& services)
{
    Dl_info self{};
    if (dladdr(reinterpret_cast<void*>(&loadstring), &self) == 0)
        return "strings: none";
    void* module = dlopen(self.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
    std::array<wchar_t, 32> text{};
    const int length = services.resourceManager()->loadString(module, greeting, text.data(),
                                                              static_cast<int>(text.size()));
    if (module)
        dlclose(module);
    return "strings: " + std::string(text.begin(), text.begin() + length);
}
