#pragma once

#include "platform/IPlatformServices.h"

#include <list>
#include <map>

/// The catalogue of the fonts that the caller added. No font is looked for anywhere else.
///
/// A font has a global family name and a local face name; its records are kept under the latter.
/// Names are compared exactly and ordered by code point. Each copy of a name that the catalogue
/// takes is announced to the host libraries, as `CStdStr` says.
class PlatformFontManagerImp : public IPlatformFontManager
{
public:
    PlatformFontManagerImp();

    /// Calls `procedure` for the records of the family that `filter` names, by its global or its
    /// local name, or of all families in the order of their local names where `filter` is null or
    /// its name is empty. Of a family, the records of the filter's character set are passed, all
    /// with DEFAULT_CHARSET or without a filter, in the order in which they were added; they stay
    /// the catalogue's.
    /// The procedure receives the record (which continues as an ENUMLOGFONTEXW), null,
    /// TRUETYPE_FONTTYPE and `callerValue`. Intended: where it returns 0 the family's next record
    /// follows; any other result ends the family, but not the families after it. It may add fonts.
    /// Returns the procedure's last result; -1 where it was not called or is null.
    int enumFontFamiliesEx(HDC dc, tagLOGFONTW* filter, EnumProcedure procedure, long callerValue,
                           unsigned int flags) override;

    /// Adds a copy of `record` under its face name, having written the name of its character set's
    /// script to its `elfScript` (left alone for a character set without a name). The first face
    /// name added under a global name remains the one that this stands for. Null adds nothing.
    void addLogFont(CStdStr<wchar_t> globalName, ENUMLOGFONTEXW* record) override;

    /// The first global name, in order, that stands for `localName`; empty where there is none.
    CStdStr<wchar_t> getGlobalNameByLocalName(CStdStr<wchar_t> localName) override;

    /// Not supported: returns 0 for every code page.
    int IsValidCodePage(unsigned int codePage) override;

private:
    // A list, because procedures keep pointers to records while others are added.
    using Records = std::list<ENUMLOGFONTEXW>;

    std::map<CStdStr<wchar_t>, CStdStr<wchar_t>> m_localNames; // by global name
    std::map<CStdStr<wchar_t>, Records> m_families;            // by local name
    std::map<BYTE, CStdStr<wchar_t>> m_scripts;                // by character set
};
