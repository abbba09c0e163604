#include "trace/reading/CallSearch.h"
#include "tests/trace/reading/OpenRecordingTest.h"

namespace trace {
namespace {

using Made = MadeRecording;

class CallSearchTest : public OpenRecordingTest
{
protected:
    CallSearchTest()
    {
        Made::Call other = Made::close("0x5581");
        other.caller = "mylibfoo.so+0x7";
        take(Made()
                 .add(Made::open("HKEY_CURRENT_USER", "Harbour", "0x5581"))
                 .add(Made::query("0x5581", "Size", ""))
                 .add(other)
                 .add({"message", "messageBox", "{}", "7"})
                 .bytes());
    }

    std::vector<qint64> found(const CallFilter& filter, const char* text = "", qint64 first = 1)
    {
        std::vector<qint64> all;
        CallSearch search(
            *m_recording, {filter, QLatin1String(text)},
            [&all](const std::vector<qint64>& found) {
                all.insert(all.end(), found.begin(), found.end());
            },
            first);
        while (search.step()) {
        }
        return all;
    }

    CallFilter m_filter;
};

using Numbers = std::vector<qint64>;

TEST_F(CallSearchTest, FindsAllWhereNothingIsAskedFor)
{
    EXPECT_EQ(found(m_filter), (Numbers{1, 2, 3, 4}));
    EXPECT_EQ(found(m_filter, "", 3), (Numbers{3, 4}));
}

TEST_F(CallSearchTest, FindsATextInAnyCaseOfLetters)
{
    EXPECT_EQ(found(m_filter, "SIZE"), Numbers{2});
    EXPECT_EQ(found(m_filter, "no such text"), Numbers{});
}

// The key's name stands in the line of the call that opened it alone.
TEST_F(CallSearchTest, FindsWhatAHandleStandsFor)
{
    EXPECT_EQ(found(m_filter, "user\\harbour"), (Numbers{1, 2, 3}));
}

TEST_F(CallSearchTest, FindsCallsOfOneLibrary)
{
    m_filter.setLibrary("libfoo.so");
    EXPECT_EQ(found(m_filter), (Numbers{1, 2, 4}));
}

TEST_F(CallSearchTest, FindsCallsOfOneManagerOrOperation)
{
    m_filter.setManager("message");
    EXPECT_EQ(found(m_filter), Numbers{4});
    m_filter = {};
    m_filter.setOperation("RegCloseKey");
    EXPECT_EQ(found(m_filter), Numbers{3});
}

TEST_F(CallSearchTest, FindsFailuresAlone)
{
    m_filter.setFailuresOnly(true);
    EXPECT_EQ(found(m_filter), Numbers{2});
}

} // namespace
} // namespace trace
