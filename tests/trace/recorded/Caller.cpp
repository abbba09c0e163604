#include "tests/trace/recorded/Caller.h"

#include "platform/IPlatformServices.h"

#include <csetjmp>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <thread>
#include <unistd.h>

namespace {

const char* g_way = "";
IPlatformServices* g_services = nullptr;
std::jmp_buf g_target;

int endHere(const LOGFONTW* /*font*/, const TEXTMETRICW* /*metric*/, unsigned int /*type*/,
            long /*value*/)
{
    if (std::strcmp(g_way, "crash") == 0)
        std::abort();
    if (std::strcmp(g_way, "kill") == 0)
        kill(getpid(), SIGKILL);
    _exit(3);
}

int leaveByException(const LOGFONTW* /*font*/, const TEXTMETRICW* /*metric*/, unsigned int /*type*/,
                     long /*value*/)
{
    throw std::runtime_error("left");
}

int leaveByJump(const LOGFONTW* /*font*/, const TEXTMETRICW* /*metric*/, unsigned int /*type*/,
                long /*value*/)
{
    std::longjmp(g_target, 1);
}

int callWithin(const LOGFONTW* /*font*/, const TEXTMETRICW* /*metric*/, unsigned int /*type*/,
               long value)
{
    return g_services->directoryManager()->isURL(L"ftp://within") + static_cast<int>(value);
}

void addFont(IPlatformFontManager& fonts)
{
    ENUMLOGFONTEXW record = {};
    record.elfLogFont.lfFaceName[0] = L'F';
    fonts.addLogFont(L"Global", &record);
}

} // namespace

void endInTheMiddle(IPlatformServices& services, const char* way)
{
    g_way = way;
    addFont(*services.fontManager());
    services.fontManager()->enumFontFamiliesEx(nullptr, nullptr, endHere, 0, 0);
}

void callAcross(IPlatformServices& services)
{
    g_services = &services;
    IPlatformFontManager& fonts = *services.fontManager();
    addFont(fonts);
    try {
        fonts.enumFontFamiliesEx(nullptr, nullptr, leaveByException, 1, 0);
    } catch (const std::runtime_error& error) {
        std::puts(error.what());
    }
    if (setjmp(g_target) == 0)
        fonts.enumFontFamiliesEx(nullptr, nullptr, leaveByJump, 2, 0);
    std::printf("within=%d\n", fonts.enumFontFamiliesEx(nullptr, nullptr, callWithin, 3, 0));
    std::thread([&fonts] { fonts.IsValidCodePage(65001); }).join();
    fonts.IsValidCodePage(936);
}

void callOften(IPlatformServices& services, int times)
{
    IPlatformRegisterManager& registry = *services.registerManager();
    for (int i = 0; i < times; ++i) {
        DWORD size = 4;
        DWORD number = 0;
        registry.RegQueryValueExW(HKEY_CURRENT_USER, L"Number", nullptr, nullptr,
                                  reinterpret_cast<unsigned char*>(&number), &size);
    }
}
