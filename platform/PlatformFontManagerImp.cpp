#include "platform/PlatformFontManagerImp.h"

#include <algorithm>
#include <cwchar>

namespace {

struct Script
{
    BYTE charSet;
    const wchar_t* name;
};

// Intended: the two Chinese sets keep their identifiers, and OEM_CHARSET has no name.
constexpr Script scripts[] = {
    {ANSI_CHARSET, L"西方"},
    {DEFAULT_CHARSET, L"西方"},
    {SYMBOL_CHARSET, L"符号"},
    {SHIFTJIS_CHARSET, L"日语"},
    {HANGUL_CHARSET, L"韩文"},
    {GB2312_CHARSET, L"CHINESE_GB2312"},
    {CHINESEBIG5_CHARSET, L"CHINESE_BIG5"},
    {JOHAB_CHARSET, L"韩文(Johab)"},
    {HEBREW_CHARSET, L"希伯来文"},
    {ARABIC_CHARSET, L"阿拉伯文"},
    {GREEK_CHARSET, L"希腊语"},
    {TURKISH_CHARSET, L"土耳其语"},
    {VIETNAMESE_CHARSET, L"越南语"},
    {THAI_CHARSET, L"泰文"},
    {EASTEUROPE_CHARSET, L"中欧"},
    {RUSSIAN_CHARSET, L"西里尔文"},
    {MAC_CHARSET, L"MAC"},
    {BALTIC_CHARSET, L"波罗的海文"},
};

// The face name of a record, which need not be terminated. Assigned, not copied: announces nothing.
CStdStr<wchar_t> faceName(const tagLOGFONTW& font)
{
    const wchar_t* begin = font.lfFaceName;
    CStdStr<wchar_t> name;
    name.assign(begin, std::find(begin, begin + LF_FACESIZE, L'\0'));
    return name;
}

// One enumeration: what is asked for, and the result so far.
class Enumeration
{
public:
    Enumeration(IPlatformFontManager::EnumProcedure procedure, long callerValue, BYTE charSet)
        : m_procedure(procedure), m_callerValue(callerValue), m_charSet(charSet)
    {
    }

    // Intended: a result of 0 goes on and any other one ends the family.
    void visit(const std::list<ENUMLOGFONTEXW>& records)
    {
        for (const ENUMLOGFONTEXW& record : records) {
            if (wanted(record) && call(record) != 0)
                return;
        }
    }

    int result() const { return m_result; }

private:
    bool wanted(const ENUMLOGFONTEXW& record) const
    {
        return m_procedure &&
               (m_charSet == DEFAULT_CHARSET || m_charSet == record.elfLogFont.lfCharSet);
    }

    int call(const ENUMLOGFONTEXW& record)
    {
        m_result = m_procedure(&record.elfLogFont, nullptr, TRUETYPE_FONTTYPE, m_callerValue);
        return m_result;
    }

    IPlatformFontManager::EnumProcedure m_procedure;
    long m_callerValue;
    BYTE m_charSet;
    int m_result = -1;
};

} // namespace

PlatformFontManagerImp::PlatformFontManagerImp()
{
    for (const Script& script : scripts)
        m_scripts.emplace(script.charSet, script.name);
}

int PlatformFontManagerImp::enumFontFamiliesEx(HDC /*dc*/, tagLOGFONTW* filter,
                                               EnumProcedure procedure, long callerValue,
                                               unsigned int /*flags*/)
{
    CStdStr<wchar_t> face;
    if (filter)
        face = faceName(*filter);
    Enumeration enumeration(procedure, callerValue, filter ? filter->lfCharSet : DEFAULT_CHARSET);
    const auto local = m_localNames.find(face);
    if (local != m_localNames.end())
        face = local->second;
    if (face.empty()) {
        for (const auto& [name, records] : m_families)
            enumeration.visit(records);
    } else {
        const auto family = m_families.find(face);
        if (family != m_families.end())
            enumeration.visit(family->second);
    }
    return enumeration.result();
}

void PlatformFontManagerImp::addLogFont(CStdStr<wchar_t> globalName, ENUMLOGFONTEXW* record)
{
    if (!record)
        return;
    const auto script = m_scripts.find(record->elfLogFont.lfCharSet);
    if (script != m_scripts.end())
        std::wcsncpy(record->elfScript, script->second.c_str(), LF_FACESIZE);
    const CStdStr<wchar_t> face = faceName(record->elfLogFont);
    // Not operator[] or insert: these copy the names in place, and each only when it is new.
    m_families.try_emplace(face).first->second.push_back(*record);
    m_localNames.try_emplace(globalName, face);
}

CStdStr<wchar_t> PlatformFontManagerImp::getGlobalNameByLocalName(CStdStr<wchar_t> localName)
{
    CStdStr<wchar_t> globalName;
    const auto found = std::find_if(m_localNames.begin(), m_localNames.end(),
                                    [&](const auto& entry) { return entry.second == localName; });
    if (found != m_localNames.end())
        globalName = found->first;
    return globalName;
}

int PlatformFontManagerImp::IsValidCodePage(unsigned int /*codePage*/)
{
    return 0;
}
