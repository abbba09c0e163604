#pragma once

#include "platform/PlatformFontManagerImp.h"
#include "tests/support/CanaryRecord.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// What tests of the font catalogue share: records by name, and a procedure that writes down its
/// calls.
class FontCatalogue : public testing::Test
{
protected:
    FontCatalogue() { current = this; }
    ~FontCatalogue() override { current = nullptr; }

    static void setName(tagLOGFONTW& font, const std::wstring& name)
    {
        name.copy(font.lfFaceName, LF_FACESIZE);
    }

    static ENUMLOGFONTEXW record(const std::wstring& name, BYTE charSet, LONG height = 0)
    {
        ENUMLOGFONTEXW result{};
        setName(result.elfLogFont, name);
        result.elfLogFont.lfCharSet = charSet;
        result.elfLogFont.lfHeight = height;
        return result;
    }

    /// Adds a record of these, and returns what the catalogue made of the caller's.
    ENUMLOGFONTEXW add(const CStdStr<wchar_t>& global, const std::wstring& local,
                       BYTE charSet = ANSI_CHARSET, LONG height = 0)
    {
        ENUMLOGFONTEXW added = record(local, charSet, height);
        manager.addLogFont(global, &added);
        return added;
    }

    int enumerate(const std::wstring& name, BYTE charSet = DEFAULT_CHARSET)
    {
        tagLOGFONTW filter{};
        setName(filter, name);
        filter.lfCharSet = charSet;
        return manager.enumFontFamiliesEx(nullptr, &filter, write, 0, 0);
    }

    /// Enumerates with no filter at all.
    int enumerateAll() { return manager.enumFontFamiliesEx(nullptr, nullptr, write, 0, 0); }

    /// Writes the face's name and height down and answers with the next of `answers`, which start
    /// anew when they are used up.
    static int write(const tagLOGFONTW* font, const tagTEXTMETRICW* /*metric*/,
                     unsigned int /*type*/, long /*callerValue*/)
    {
        const std::wstring name(font->lfFaceName, wcsnlen(font->lfFaceName, LF_FACESIZE));
        current->calls.push_back(name + L' ' + std::to_wstring(font->lfHeight));
        return current->answers[(current->calls.size() - 1) % current->answers.size()];
    }

    using Calls = std::vector<std::wstring>;

    PlatformFontManagerImp manager;
    Calls calls;
    std::vector<int> answers = {0};
    static inline FontCatalogue* current = nullptr;
};
