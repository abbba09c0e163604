#include "app/CStdStr.h"
#include "tests/support/RecordingHost.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <utility>
#include <vector>

namespace {

using WideString = CStdStr<wchar_t>;

class CStdStrTest : public testing::Test
{
protected:
    void SetUp() override { g_recordingHost = RecordingHost(); }
    static int announced() { return g_recordingHost.announcedStrings; }
};

TEST_F(CStdStrTest, AddsNoMembersToTheStandardString)
{
    EXPECT_EQ(sizeof(std::wstring), sizeof(WideString));
    EXPECT_TRUE((std::is_base_of_v<std::wstring, WideString>));
}

TEST_F(CStdStrTest, IsEmptyWhenBuiltFromNull)
{
    const wchar_t* null = nullptr;
    EXPECT_TRUE(WideString(null).empty());
}

TEST_F(CStdStrTest, HoldsTheTextItIsBuiltFrom)
{
    EXPECT_EQ(std::wstring(L"k\u00e4y \U0001F600"), WideString(L"k\u00e4y \U0001F600"));
}

TEST_F(CStdStrTest, BuildingFromALiteralAnnouncesNothing)
{
    const WideString text(L"text");
    EXPECT_EQ(4U, text.size());
    EXPECT_EQ(0, announced());
}

TEST_F(CStdStrTest, CopyingAnnouncesTheNewString)
{
    const WideString text(L"text");
    const WideString copy(
        text); // NOLINT(performance-unnecessary-copy-initialization): the copy counts
    EXPECT_EQ(text, copy);
    EXPECT_EQ(1, announced());
    EXPECT_EQ(&copy, g_recordingHost.lastAnnounced);
}

TEST_F(CStdStrTest, MovingIsACopyAndAnnounced)
{
    WideString text(L"text");
    const WideString moved(
        std::move(text)); // NOLINT(performance-move-const-arg): it shows the copy
    EXPECT_EQ(L"text", moved);
    EXPECT_EQ(1, announced());
}

TEST_F(CStdStrTest, AssigningAnnouncesNothing)
{
    const WideString text(L"text");
    WideString other;
    other = text;
    EXPECT_EQ(text, other);
    EXPECT_EQ(0, announced());
}

TEST_F(CStdStrTest, CopyIntoAMapKeyAnnouncesOnce)
{
    const WideString key(L"key");
    std::map<WideString, int> map;
    map.emplace(key, 1);
    EXPECT_EQ(1, announced());
    EXPECT_EQ(&map.begin()->first, g_recordingHost.lastAnnounced);
}

TEST_F(CStdStrTest, CopyIntoAMapEntryAnnouncesKeyAndValue)
{
    const WideString key(L"key");
    const WideString value(L"value");
    std::map<WideString, WideString> map;
    map.emplace(key, value);
    EXPECT_EQ(2, announced());
}

// Into the pair, and out of it into the map.
TEST_F(CStdStrTest, InsertionOfAPairAnnouncesTheKeyTwice)
{
    const WideString key(L"key");
    std::map<WideString, int> map;
    map.insert(std::make_pair(key, 1)); // NOLINT(modernize-use-emplace): the pair is the point
    EXPECT_EQ(2, announced());
    EXPECT_EQ(&map.begin()->first, g_recordingHost.lastAnnounced);
}

TEST_F(CStdStrTest, OrdersByCodePointAndCase)
{
    EXPECT_LT(WideString(L"B"), WideString(L"a"));
    EXPECT_LT(WideString(L"\uFF21"), WideString(L"\U0001D400"));
}

TEST(Ssasn, CopiesFromAnUnrelatedBuffer)
{
    std::wstring text = L"before";
    ssasn(text, L"a longer text than before");
    EXPECT_EQ(L"a longer text than before", text);
}

TEST(Ssasn, NullLeavesTheEmptyString)
{
    std::wstring text = L"before";
    ssasn(text, nullptr);
    EXPECT_TRUE(text.empty());
}

TEST(Ssasn, OwnSuffixBecomesTheString)
{
    std::wstring text = L"abcdef";
    ssasn(text, text.c_str() + 3);
    EXPECT_EQ(L"def", text);
}

TEST(Ssasn, OwnBeginningChangesNothing)
{
    std::wstring text = L"abcdef";
    ssasn(text, text.c_str());
    EXPECT_EQ(L"abcdef", text);
}

TEST(Ssasn, OwnTerminatorGivesTheEmptyString)
{
    std::wstring text = L"abcdef";
    ssasn(text, text.c_str() + 6);
    EXPECT_TRUE(text.empty());
}

TEST(Ssasn, OwnTailKeepsWhatFollowsAnEmbeddedNul)
{
    std::wstring text(L"ab\0cd", 5);
    ssasn(text, text.c_str() + 1);
    EXPECT_EQ(std::wstring(L"b\0cd", 4), text);
}

struct Comparison
{
    const wchar_t* a;
    const wchar_t* b;
    int result;
};

class Ssicmp : public testing::TestWithParam<Comparison>
{
};

TEST_P(Ssicmp, ReturnsTheFirstDifferenceOfLowerCasedCharacters)
{
    EXPECT_EQ(GetParam().result, ssicmp(GetParam().a, GetParam().b));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Ssicmp,
    testing::Values(Comparison{L"Hello", L"hELLO", 0}, Comparison{L"abc", L"abd", -1},
                    Comparison{L"ABD", L"abc", 1}, Comparison{L"ab", L"abc", -'c'},
                    Comparison{L"abc", L"ab", 'c'}, Comparison{L"", L"", 0},
                    Comparison{L"", L"Z", -'z'}, Comparison{L"[", L"a", '[' - 'a'},
                    // The classic locale does not map what lies beyond ASCII.
                    Comparison{L"\u00c4", L"\u00e4", -32}));

TEST(SsicmpLimits, DifferenceWrapsInsteadOfOverflowing)
{
    const wchar_t high[] = {static_cast<wchar_t>(0x7FFFFFFF), 0};
    const wchar_t low[] = {static_cast<wchar_t>(0x80000001), 0};
    EXPECT_EQ(-2, ssicmp(high, low));
    EXPECT_EQ(2, ssicmp(low, high));
}

} // namespace
