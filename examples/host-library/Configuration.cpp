// The language functions. A maker may have them in a library of their own, or leave them out.

#include "host/HostLibraries.h"
#include "platform/WindowsTypes.h"

#include <QSettings>

#include <cwchar>

namespace {

constexpr int english = 1033;
constexpr int simplifiedChinese = 2052;

int g_language = english;

} // namespace

// The language is empty where none was asked for on the command line.
int InitOrbxConfig(const wchar_t* language)
{
    g_language = std::wcscmp(language, L"zh-CN") == 0 ? simplifiedChinese : english;
    return 0;
}

// Called once, after a successful set-up: the place for entries that have to be there. The store is
// the library's own, so it may be filled past the services, in the form that they read.
void CreateConfigReg()
{
    const QString language = QStringLiteral("Software/Sample/Language");
    if (g_globalSettings && !g_globalSettings->contains(language))
        g_globalSettings->setValue(language, QStringLiteral("1$%1").arg(g_language));
}

int GetCurrentOrbxLanguageId()
{
    return g_language;
}
