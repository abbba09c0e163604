#pragma once

#include "platform/IPlatformServices.h"

#include <list>
#include <map>

/// Implements `IPlatformFontManager` on ordered maps. Each copy of a name that the catalogue takes
/// is announced to the host libraries, as `CStdStr` says.
class PlatformFontManagerImp : public IPlatformFontManager
{
public:
    PlatformFontManagerImp();

    int enumFontFamiliesEx(HDC dc, tagLOGFONTW* filter, EnumProcedure procedure, long callerValue,
                           unsigned int flags) override;
    void addLogFont(CStdStr<wchar_t> globalName, ENUMLOGFONTEXW* record) override;
    CStdStr<wchar_t> getGlobalNameByLocalName(CStdStr<wchar_t> localName) override;
    int IsValidCodePage(unsigned int codePage) override;

private:
    // A list, because procedures keep pointers to records while others are added.
    using Records = std::list<ENUMLOGFONTEXW>;

    std::map<CStdStr<wchar_t>, CStdStr<wchar_t>> m_localNames; // by global name
    std::map<CStdStr<wchar_t>, Records> m_families;            // by local name
    std::map<BYTE, CStdStr<wchar_t>> m_scripts;                // by character set
};
