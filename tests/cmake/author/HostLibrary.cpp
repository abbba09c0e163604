// Answers everything that the application asks of host libraries, calls managers whose operations
// take and return wide strings, prints what it got, and ends the process.

#include "host/HostLibraries.h"
#include "platform/IPlatformServices.h"

#include <cstdio>
#include <cstdlib>

QSettings* g_globalSettings = nullptr;

void setPlatformServices(IPlatformServices* services)
{
    ENUMLOGFONTEXW record{};
    record.elfLogFont.lfFaceName[0] = L'L';
    IPlatformFontManager* fonts = services->fontManager();
    fonts->addLogFont(L"Global", &record);
    const CStdStr<wchar_t> name = fonts->getGlobalNameByLocalName(L"L");
    CStdStr<wchar_t> path;
    const int exists = services->directoryManager()->isFileExist(L"/", path);
    std::printf("%ls %d\n", name.c_str(), exists);
    std::fflush(stdout);
    std::_Exit(0);
}

void updateCStringManagerData(const void* /*string*/) {}

int strcpy_s(char* /*destination*/, int /*size*/, const char* /*source*/)
{
    return 0;
}

void* GetProcAddress(HINSTANCE /*module*/, const char* /*name*/)
{
    return nullptr;
}

int InitOrbxConfig(const wchar_t* /*language*/)
{
    return 0;
}

void CreateConfigReg() {}

int GetCurrentOrbxLanguageId()
{
    return 0;
}
