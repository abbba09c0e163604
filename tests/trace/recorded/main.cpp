// The program: trace_recorded everything | crash | kill | exit | across | derived | often NUMBER

#include "host/HostLibraries.h"
#include "platform/PlatformProfileManagerImp.h"
#include "platform/PlatformServicesImp.h"
#include "tests/trace/recorded/Caller.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <typeinfo>

namespace {

// A program may answer some operations itself.
class OwnProfiles : public PlatformProfileManagerImp
{
public:
    unsigned int GetPrivateProfileIntW(const wchar_t* section, const wchar_t* key, int fallback,
                                       const wchar_t* file) override
    {
        return 1000 +
               PlatformProfileManagerImp::GetPrivateProfileIntW(section, key, fallback, file);
    }
    virtual int added() { return 4; }
};

class OwnServices : public PlatformServicesImp
{
public:
    IPlatformProfileManager* profileManager() override { return &m_profiles; }

private:
    OwnProfiles m_profiles;
};

std::size_t memoryInUse() // kilobytes
{
    std::size_t pages = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "re")) {
        if (std::fscanf(file, "%*u %zu", &pages) != 1)
            pages = 0;
        std::fclose(file);
    }
    return pages * 4;
}

void callDerived()
{
    OwnServices services;
    setPlatformServices(&services);
    callEverything(services);
    auto* profiles = dynamic_cast<OwnProfiles*>(services.profileManager());
    IPlatformProfileManager& manager = *services.profileManager();
    std::printf("cast=%d added=%d type=%d\n", profiles != nullptr, profiles ? profiles->added() : 0,
                typeid(manager) == typeid(OwnProfiles));
}

void callOftenInFlatMemory(int times)
{
    callOften(g_PlatformServices, times / 10);
    const std::size_t before = memoryInUse();
    callOften(g_PlatformServices, times);
    std::printf("grown=%d\n", memoryInUse() > before + 1024);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("recorded"));
    const std::string way = argc > 1 ? argv[1] : "";
    if (way == "derived") {
        callDerived();
        return 0;
    }
    setPlatformServices(&g_PlatformServices);
    if (way == "everything")
        callEverything(g_PlatformServices);
    else if (way == "across")
        callAcross(g_PlatformServices);
    else if (way == "random")
        callAtRandom(g_PlatformServices, static_cast<unsigned int>(std::atoi(argv[2])),
                     std::atoi(argv[3]));
    else if (way == "often")
        callOftenInFlatMemory(std::atoi(argv[2]));
    else
        endInTheMiddle(g_PlatformServices, argv[1]);
    return 5;
}
