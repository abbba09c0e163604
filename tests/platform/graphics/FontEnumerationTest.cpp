#include "tests/platform/graphics/FontCatalogue.h"

#include <cstring>

namespace {

using FontEnumeration = FontCatalogue;

TEST_F(FontEnumeration, EmptyCatalogueCallsNothing)
{
    EXPECT_EQ(-1, enumerateAll());
    EXPECT_EQ(-1, enumerate(L""));
    EXPECT_EQ(-1, enumerate(L"x"));
    EXPECT_EQ(Calls{}, calls);
}

TEST_F(FontEnumeration, ProcedureReceivesTheFixedArguments)
{
    struct Call
    {
        const tagTEXTMETRICW* metric = reinterpret_cast<const tagTEXTMETRICW*>(1);
        unsigned int type = 0;
    } call;
    add(L"X", L"x");
    const auto procedure = [](const tagLOGFONTW*, const tagTEXTMETRICW* metric, unsigned int type,
                              long value) {
        *reinterpret_cast<Call*>(value) = {metric, type};
        return 7;
    };
    EXPECT_EQ(7, manager.enumFontFamiliesEx(&manager, nullptr, procedure,
                                            reinterpret_cast<long>(&call), ~0U));
    EXPECT_EQ(nullptr, call.metric);
    EXPECT_EQ(4U, call.type);
}

TEST_F(FontEnumeration, FamiliesAreVisitedInCodePointOrderOfTheirLocalNames)
{
    for (const wchar_t* name : {L"\U0001D400", L"b", L"\uFF21", L"a", L"B", L"\u5B8B"})
        add(L"any", name);
    enumerate(L"");
    EXPECT_EQ((Calls{L"B 0", L"a 0", L"b 0", L"\u5B8B 0", L"\uFF21 0", L"\U0001D400 0"}), calls);
}

TEST_F(FontEnumeration, RecordsOfAFamilyAreVisitedAsAdded)
{
    for (const LONG height : {3, 1, 2, 1})
        add(L"X", L"x", ANSI_CHARSET, height);
    enumerate(L"x");
    EXPECT_EQ((Calls{L"x 3", L"x 1", L"x 2", L"x 1"}), calls);
}

TEST_F(FontEnumeration, OnlyTheNamedFamilyIsVisited)
{
    for (const wchar_t* name : {L"a", L"ab", L"b", L"A"})
        add((name + std::wstring(L" global")).c_str(), name);
    EXPECT_EQ(0, enumerate(L"a"));
    EXPECT_EQ(Calls{L"a 0"}, calls);
}

TEST_F(FontEnumeration, UnknownFamilyCallsNothing)
{
    add(L"X", L"x");
    for (const wchar_t* name : {L"y", L"xx", L" "})
        EXPECT_EQ(-1, enumerate(name));
    EXPECT_EQ(Calls{}, calls);
}

TEST_F(FontEnumeration, GlobalNameStandsForItsLocalOne)
{
    add(L"Song", L"\u5B8B\u4F53");
    add(L"Hei", L"\u9ED1\u4F53");
    EXPECT_EQ(0, enumerate(L"Song"));
    EXPECT_EQ(Calls{L"\u5B8B\u4F53 0"}, calls);
}

TEST_F(FontEnumeration, GlobalNameWinsOverAFamilyOfThatNameAndIsMappedOnce)
{
    add(L"a", L"b", ANSI_CHARSET, 1);
    add(L"b", L"c", ANSI_CHARSET, 2);
    add(L"x", L"a", ANSI_CHARSET, 3);
    enumerate(L"a");
    EXPECT_EQ(Calls{L"b 1"}, calls);
}

TEST_F(FontEnumeration, EmptyGlobalNameStandsForItsLocalOneToo)
{
    add(L"", L"b");
    add(L"A", L"a");
    enumerate(L"");
    enumerateAll();
    EXPECT_EQ((Calls{L"b 0", L"b 0"}), calls);
}

TEST_F(FontEnumeration, FamilyWithoutANameIsVisitedAmongAll)
{
    add(L"X", L"");
    add(L"A", L"a");
    enumerate(L"");
    EXPECT_EQ((Calls{L" 0", L"a 0"}), calls);
    // Through its global name too, all are meant.
    calls.clear();
    enumerate(L"X");
    EXPECT_EQ((Calls{L" 0", L"a 0"}), calls);
}

TEST_F(FontEnumeration, CharacterSetPicksRecords)
{
    const ENUMLOGFONTEXW western = add(L"X", L"x", ANSI_CHARSET, 1);
    const ENUMLOGFONTEXW chinese = add(L"X", L"x", GB2312_CHARSET, 2);
    EXPECT_EQ(std::wstring(L"\u897F\u65B9"), std::wstring(western.elfScript));
    EXPECT_EQ(std::wstring(L"CHINESE_GB2312"), std::wstring(chinese.elfScript));
    enumerate(L"");
    EXPECT_EQ((Calls{L"x 1", L"x 2"}), calls);
    calls.clear();
    EXPECT_EQ(0, enumerate(L"", GB2312_CHARSET));
    EXPECT_EQ(Calls{L"x 2"}, calls);
    calls.clear();
    EXPECT_EQ(0, enumerate(L"X", ANSI_CHARSET));
    EXPECT_EQ(Calls{L"x 1"}, calls);
    calls.clear();
    EXPECT_EQ(-1, enumerate(L"x", OEM_CHARSET));
    EXPECT_EQ(Calls{}, calls);
}

TEST_F(FontEnumeration, DefaultCharacterSetMeansAllThoughRecordsMayHaveItToo)
{
    add(L"X", L"x", DEFAULT_CHARSET, 1);
    add(L"X", L"x", OEM_CHARSET, 2);
    enumerate(L"x", DEFAULT_CHARSET);
    EXPECT_EQ((Calls{L"x 1", L"x 2"}), calls);
    calls.clear();
    enumerate(L"x", OEM_CHARSET);
    EXPECT_EQ(Calls{L"x 2"}, calls);
}

TEST_F(FontEnumeration, ZeroGoesOnAndAnythingElseEndsTheFamily)
{
    for (const LONG height : {1, 2, 3})
        add(L"X", L"x", ANSI_CHARSET, height);
    for (const int answer : {1, -1, 42}) {
        calls.clear();
        answers = {0, answer, 5};
        EXPECT_EQ(answer, enumerate(L"x"));
        EXPECT_EQ((Calls{L"x 1", L"x 2"}), calls);
    }
}

TEST_F(FontEnumeration, EndedFamilyDoesNotEndTheEnumeration)
{
    for (const wchar_t* name : {L"a", L"b", L"c"}) {
        add(name, name, ANSI_CHARSET, 1);
        add(name, name, ANSI_CHARSET, 2);
    }
    answers = {1};
    EXPECT_EQ(1, enumerateAll());
    EXPECT_EQ((Calls{L"a 1", L"b 1", L"c 1"}), calls);
}

TEST_F(FontEnumeration, ResultIsThatOfTheLastCall)
{
    add(L"a", L"a", ANSI_CHARSET);
    add(L"b", L"b", ANSI_CHARSET);
    add(L"c", L"c", OEM_CHARSET);
    answers = {5, 9, 11};
    EXPECT_EQ(9, enumerate(L"", ANSI_CHARSET));
    answers = {5, 0};
    calls.clear();
    EXPECT_EQ(0, enumerate(L"", ANSI_CHARSET));
    answers = {-1};
    EXPECT_EQ(-1, enumerate(L"c"));
}

TEST_F(FontEnumeration, NullProcedureGivesMinusOne)
{
    add(L"X", L"x");
    tagLOGFONTW filter{};
    setName(filter, L"x");
    EXPECT_EQ(-1, manager.enumFontFamiliesEx(nullptr, nullptr, nullptr, 0, 0));
    EXPECT_EQ(-1, manager.enumFontFamiliesEx(nullptr, &filter, nullptr, 0, 0));
}

TEST_F(FontEnumeration, FilterNameOfThirtyTwoCharactersNeedsNoTerminator)
{
    const std::wstring name(LF_FACESIZE, L'n');
    add(L"X", name);
    CanaryRecord<tagLOGFONTW> filter;
    setName(*filter.get(), name);
    filter->lfCharSet = DEFAULT_CHARSET;
    EXPECT_EQ(0, manager.enumFontFamiliesEx(nullptr, filter.get(), write, 0, 0));
    EXPECT_EQ(Calls{name + L" 0"}, calls);
}

TEST_F(FontEnumeration, FilterIsNotWritten)
{
    add(L"X", L"x");
    CanaryRecord<tagLOGFONTW> filter;
    filter->lfFaceName[0] = L'\0';
    const tagLOGFONTW before = *filter.get();
    manager.enumFontFamiliesEx(nullptr, filter.get(), write, 0, 0);
    EXPECT_EQ(0, memcmp(&before, filter.get(), sizeof(before)));
    filter.expectIntact();
}

/// Adds fonts from within the procedure and remembers where the records lie.
class FontEnumerationThatAdds : public FontCatalogue
{
protected:
    static int addAnother(const tagLOGFONTW* font, const tagTEXTMETRICW* /*metric*/,
                          unsigned int /*type*/, long limit)
    {
        auto* self = static_cast<FontEnumerationThatAdds*>(current);
        self->seen.push_back(font);
        const std::wstring before = font->lfFaceName;
        if (self->seen.size() < static_cast<std::size_t>(limit)) {
            const auto height = static_cast<LONG>(self->seen.size());
            self->add(L"X", L"x", ANSI_CHARSET, height);
            self->add(L"Y", L"y" + std::to_wstring(height), ANSI_CHARSET, 0);
        }
        EXPECT_EQ(before, font->lfFaceName);
        return 0;
    }

    std::vector<const tagLOGFONTW*> seen;
};

TEST_F(FontEnumerationThatAdds, RecordsStayInPlaceAndNewOnesFollow)
{
    constexpr long limit = 1000;
    add(L"X", L"x", ANSI_CHARSET, 0);
    tagLOGFONTW filter{};
    setName(filter, L"x");
    filter.lfCharSet = DEFAULT_CHARSET;
    EXPECT_EQ(0, manager.enumFontFamiliesEx(nullptr, &filter, addAnother, limit, 0));
    ASSERT_EQ(static_cast<std::size_t>(limit), seen.size());
    for (std::size_t i = 0; i < seen.size(); ++i)
        EXPECT_EQ(static_cast<LONG>(i), seen[i]->lfHeight);
}

TEST_F(FontEnumerationThatAdds, EnumerationOfAllReachesTheNewFamilies)
{
    add(L"X", L"x", ANSI_CHARSET, 0);
    EXPECT_EQ(0, manager.enumFontFamiliesEx(nullptr, nullptr, addAnother, 3, 0));
    // Three records of x, then y1 and y2.
    EXPECT_EQ(5U, seen.size());
}

TEST_F(FontEnumeration, FindsOneFamilyOfTenThousand)
{
    for (int i = 0; i < 10000; ++i)
        add(std::to_wstring(i).c_str(), L"font " + std::to_wstring(i), ANSI_CHARSET, i);
    EXPECT_EQ(0, enumerate(L"font 7777"));
    EXPECT_EQ(0, enumerate(L"1234"));
    EXPECT_EQ((Calls{L"font 7777 7777", L"font 1234 1234"}), calls);
}

} // namespace
