#include "Sample.h"

#include "platform/IPlatformServices.h"

#include <array>
#include <cstdio>
#include <unistd.h>

namespace {

// The folder comes without a terminator, into a buffer of zeros.
std::wstring temporaryFile(IPlatformDirectoryManager& directories)
{
    std::array<wchar_t, MAX_PATH> folder{};
    directories.GetTempPathW(folder.size(), folder.data());
    return folder.data() + (L"quayside-sample-" + std::to_wstring(getpid()) + L".ini");
}

} // namespace

// Each family has a parser of its own; what one has written, the next call of the other sees.
std::string sample::useProfiles(IPlatformServices& services)
{
    const std::wstring wideFile = temporaryFile(*services.directoryManager());
    const std::string file(wideFile.begin(), wideFile.end());
    IPlatformProfileManager& profiles = *services.profileManager();
    profiles.WritePrivateProfileStringW(L"Window", L"Width", L"640", wideFile.c_str());
    profiles.WritePrivateProfileStringA("Window", "Height", "480", file.c_str());
    std::array<char, 16> width{};
    profiles.GetPrivateProfileStringA("Window", "Width", nullptr, width.data(), width.size(),
                                      file.c_str());
    const unsigned int height =
        profiles.GetPrivateProfileIntW(L"Window", L"Height", 0, wideFile.c_str());
    std::remove(file.c_str());
    return std::string("profiles: ") + width.data() + " x " + std::to_string(height);
}
