#include "tests/support/RecordingHost.h"

#include <cstring>
#include <dlfcn.h>

RecordingHost g_recordingHost;
QSettings* g_globalSettings = nullptr;

void setPlatformServices(IPlatformServices* services)
{
    g_recordingHost.calls << QStringLiteral("setPlatformServices");
    g_recordingHost.services = services;
}

int InitOrbxConfig(const wchar_t* language)
{
    g_recordingHost.calls << QStringLiteral("InitOrbxConfig");
    g_recordingHost.requestedLanguage = QString::fromWCharArray(language);
    return g_recordingHost.initResult;
}

void CreateConfigReg()
{
    g_recordingHost.calls << QStringLiteral("CreateConfigReg");
}

int GetCurrentOrbxLanguageId()
{
    g_recordingHost.calls << QStringLiteral("GetCurrentOrbxLanguageId");
    return g_recordingHost.languageId;
}

void updateCStringManagerData(const void* string)
{
    ++g_recordingHost.announcedStrings;
    g_recordingHost.lastAnnounced = string;
}

int strcpy_s(char* destination, int size, const char* source)
{
    std::strncpy(destination, source, static_cast<std::size_t>(size));
    return 0;
}

void* GetProcAddress(HINSTANCE module, const char* name)
{
    return dlsym(module, name);
}
