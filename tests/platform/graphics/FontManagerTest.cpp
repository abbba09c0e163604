// What goes into the catalogue, and the names.

#include "tests/platform/graphics/FontCatalogue.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace {

using FontManager = FontCatalogue;

static_assert(offsetof(tagLOGFONTW, lfItalic) == 20);
static_assert(offsetof(tagLOGFONTW, lfCharSet) == 23);
static_assert(offsetof(tagLOGFONTW, lfFaceName) == 28);
static_assert(sizeof(tagLOGFONTW) == 28 + 32 * 4);
static_assert(offsetof(ENUMLOGFONTEXW, elfFullName) == 156);
static_assert(offsetof(ENUMLOGFONTEXW, elfStyle) == 156 + 64 * 4);
static_assert(offsetof(ENUMLOGFONTEXW, elfScript) == 156 + 96 * 4);
static_assert(sizeof(ENUMLOGFONTEXW) == 156 + 128 * 4);

struct ScriptRow
{
    BYTE charSet;
    const wchar_t* name;
};

class FontScript : public FontCatalogue, public testing::WithParamInterface<ScriptRow>
{
};

TEST_P(FontScript, IsWrittenToTheCallersRecordAndTheCatalogues)
{
    const std::wstring expected =
        GetParam().name + std::wstring(LF_FACESIZE - wcslen(GetParam().name), L'\0');
    CanaryRecord<ENUMLOGFONTEXW> added;
    setName(added->elfLogFont, L"x");
    added->elfLogFont.lfFaceName[1] = L'\0';
    added->elfLogFont.lfCharSet = GetParam().charSet;
    manager.addLogFont(L"X", added.get());
    EXPECT_EQ(expected, std::wstring(added->elfScript, LF_FACESIZE));
    EXPECT_TRUE(added.untouched(added->elfStyle));
    added.expectIntact();
    std::wstring stored;
    const auto script = [](const tagLOGFONTW* font, const tagTEXTMETRICW*, unsigned int,
                           long result) {
        const auto* record = reinterpret_cast<const ENUMLOGFONTEXW*>(font);
        reinterpret_cast<std::wstring*>(result)->assign(record->elfScript, LF_FACESIZE);
        return 0;
    };
    manager.enumFontFamiliesEx(nullptr, nullptr, script, reinterpret_cast<long>(&stored), 0);
    EXPECT_EQ(expected, stored);
}

INSTANTIATE_TEST_SUITE_P(
    CharacterSets, FontScript,
    testing::Values(
        ScriptRow{0, L"\u897F\u65B9"}, ScriptRow{1, L"\u897F\u65B9"}, ScriptRow{2, L"\u7B26\u53F7"},
        ScriptRow{77, L"MAC"}, ScriptRow{128, L"\u65E5\u8BED"}, ScriptRow{129, L"\u97E9\u6587"},
        ScriptRow{130, L"\u97E9\u6587(Johab)"}, ScriptRow{134, L"CHINESE_GB2312"},
        ScriptRow{136, L"CHINESE_BIG5"}, ScriptRow{161, L"\u5E0C\u814A\u8BED"},
        ScriptRow{162, L"\u571F\u8033\u5176\u8BED"}, ScriptRow{163, L"\u8D8A\u5357\u8BED"},
        ScriptRow{177, L"\u5E0C\u4F2F\u6765\u6587"}, ScriptRow{178, L"\u963F\u62C9\u4F2F\u6587"},
        ScriptRow{186, L"\u6CE2\u7F57\u7684\u6D77\u6587"},
        ScriptRow{204, L"\u897F\u91CC\u5C14\u6587"}, ScriptRow{222, L"\u6CF0\u6587"},
        ScriptRow{238, L"\u4E2D\u6B27"}));

TEST_F(FontManager, CharacterSetWithoutANameLeavesTheScriptAlone)
{
    constexpr int named[] = {0,   1,   2,   77,  128, 129, 130, 134, 136,
                             161, 162, 163, 177, 178, 186, 204, 222, 238};
    for (int charSet = 0; charSet < 256; ++charSet) {
        if (std::find(std::begin(named), std::end(named), charSet) != std::end(named))
            continue;
        CanaryRecord<ENUMLOGFONTEXW> added;
        added->elfLogFont.lfCharSet = static_cast<BYTE>(charSet);
        manager.addLogFont(L"X", added.get());
        EXPECT_TRUE(added.untouched(added->elfScript)) << charSet;
    }
}

TEST_F(FontManager, NullRecordAddsNothing)
{
    manager.addLogFont(L"X", nullptr);
    EXPECT_EQ(-1, enumerateAll());
    EXPECT_EQ(std::wstring(), manager.getGlobalNameByLocalName(L""));
}

TEST_F(FontManager, RecordsAreCopied)
{
    ENUMLOGFONTEXW added = record(L"x", ANSI_CHARSET, 1);
    manager.addLogFont(L"X", &added);
    added.elfLogFont.lfHeight = 2;
    enumerateAll();
    EXPECT_EQ(Calls{L"x 1"}, calls);
}

TEST_F(FontManager, WholeRecordReachesTheProcedure)
{
    ENUMLOGFONTEXW added = record(L"x", OEM_CHARSET, -12);
    added.elfLogFont.lfPitchAndFamily = 0xFE;
    std::wstring(L"full name").copy(added.elfFullName, LF_FULLFACESIZE);
    std::wstring(L"style").copy(added.elfStyle, LF_FACESIZE);
    std::wstring(L"script").copy(added.elfScript, LF_FACESIZE);
    manager.addLogFont(L"X", &added);
    const auto equal = [](const tagLOGFONTW* font, const tagTEXTMETRICW*, unsigned int,
                          long expected) {
        return memcmp(font, reinterpret_cast<const void*>(expected), sizeof(ENUMLOGFONTEXW)) == 0
                   ? 1
                   : 0;
    };
    EXPECT_EQ(
        1, manager.enumFontFamiliesEx(nullptr, nullptr, equal, reinterpret_cast<long>(&added), 0));
}

TEST_F(FontManager, LocalNameOfThirtyTwoCharactersNeedsNoTerminator)
{
    const std::wstring name(LF_FACESIZE, L'n');
    ENUMLOGFONTEXW added = record(name, ANSI_CHARSET);
    std::wstring(L"full").copy(added.elfFullName, LF_FULLFACESIZE);
    manager.addLogFont(L"X", &added);
    EXPECT_EQ(std::wstring(L"X"), manager.getGlobalNameByLocalName(name.c_str()));
    EXPECT_EQ(0, enumerate(name));
    EXPECT_EQ(Calls{name + L" 0"}, calls);
}

TEST_F(FontManager, GlobalNameOfALocalOneIsFound)
{
    add(L"Song", L"\u5B8B\u4F53");
    add(L"Hei", L"\u9ED1\u4F53");
    EXPECT_EQ(std::wstring(L"Song"), manager.getGlobalNameByLocalName(L"\u5B8B\u4F53"));
    EXPECT_EQ(std::wstring(L"Hei"), manager.getGlobalNameByLocalName(L"\u9ED1\u4F53"));
}

TEST_F(FontManager, UnknownLocalNameHasNoGlobalOne)
{
    EXPECT_EQ(std::wstring(), manager.getGlobalNameByLocalName(L"x"));
    add(L"X", L"x");
    for (const wchar_t* name : {L"", L"X", L"xx", L" x"})
        EXPECT_EQ(std::wstring(), manager.getGlobalNameByLocalName(name));
}

TEST_F(FontManager, GlobalNameThatSortsFirstWins)
{
    add(L"b", L"x");
    add(L"a", L"x");
    add(L"c", L"x");
    EXPECT_EQ(std::wstring(L"a"), manager.getGlobalNameByLocalName(L"x"));
    add(L"B", L"x");
    EXPECT_EQ(std::wstring(L"B"), manager.getGlobalNameByLocalName(L"x"));
}

TEST_F(FontManager, GlobalNamesSortByCodePoint)
{
    add(L"\U0001D400", L"x");
    EXPECT_EQ(std::wstring(L"\U0001D400"), manager.getGlobalNameByLocalName(L"x"));
    add(L"\uFF21", L"x");
    EXPECT_EQ(std::wstring(L"\uFF21"), manager.getGlobalNameByLocalName(L"x"));
}

TEST_F(FontManager, FirstLocalNameOfAGlobalOneStays)
{
    add(L"X", L"one");
    add(L"X", L"two");
    EXPECT_EQ(std::wstring(L"X"), manager.getGlobalNameByLocalName(L"one"));
    EXPECT_EQ(std::wstring(), manager.getGlobalNameByLocalName(L"two"));
    enumerate(L"X");
    EXPECT_EQ(Calls{L"one 0"}, calls);
}

TEST_F(FontManager, EmbeddedNulCountsInTheSearchByLocalName)
{
    add(L"X", L"x");
    CStdStr<wchar_t> name = L"x";
    name.push_back(L'\0');
    EXPECT_EQ(std::wstring(), manager.getGlobalNameByLocalName(name));
    EXPECT_EQ(std::wstring(L"X"), manager.getGlobalNameByLocalName(name.c_str()));
}

TEST_F(FontManager, EmbeddedNulIsPartOfAGlobalName)
{
    CStdStr<wchar_t> name = L"X";
    name.append(1, L'\0').append(L"Y");
    add(name, L"x");
    EXPECT_EQ(static_cast<const std::wstring&>(name), manager.getGlobalNameByLocalName(L"x"));
    EXPECT_EQ(-1, enumerate(L"X"));
}

TEST_F(FontManager, NoCodePageIsValid)
{
    for (const unsigned int codePage : {0U, 1U, 134U, 437U, 936U, 1252U, 65001U, ~0U})
        EXPECT_EQ(0, manager.IsValidCodePage(codePage));
}

} // namespace
