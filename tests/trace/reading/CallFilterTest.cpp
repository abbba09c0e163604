#include "trace/reading/CallFilter.h"
#include "tests/trace/reading/RecordingTest.h"

namespace trace {
namespace {

class CallFilterTest : public RecordingTest
{
protected:
    using Made = MadeRecording;

    /// The numbers of the calls that a set admits, in a recording of five calls.
    QVector<qint64> admitted(const QString& set, bool isFailuresOnly = false) const
    {
        Made::Call other = Made::close("0x1");
        other.caller = "libbar.so+0x20";
        const auto file = read(Made()
                                   .add(Made::open("HKEY_CURRENT_USER", "A", "0x1"))
                                   .add(Made::query("0x1", "v", ""))
                                   .add({"directory", "isFileExist", "{}", "1"})
                                   .add(other)
                                   .addBytes(Made::begun(5, Made::close("0x2")))
                                   .bytes());
        CallFilter filter;
        EXPECT_TRUE(set.isEmpty() || filter.add(set)) << filter.fault().toStdString();
        filter.setFailuresOnly(isFailuresOnly);
        QVector<qint64> numbers;
        for (const CallEntry& entry : file->calls()) {
            if (filter.admits(*file, entry))
                numbers += entry.number;
        }
        return numbers;
    }
};

using Numbers = QVector<qint64>;

TEST_F(CallFilterTest, AdmitsAllWithoutASet)
{
    EXPECT_EQ(admitted({}), Numbers({1, 2, 3, 4, 5}));
    EXPECT_TRUE(CallFilter().isOpen());
}

TEST_F(CallFilterTest, AdmitsRangesOfNumbers)
{
    EXPECT_EQ(admitted("2"), Numbers({2}));
    EXPECT_EQ(admitted("2-3,5"), Numbers({2, 3, 5}));
    EXPECT_EQ(admitted("4-"), Numbers({4, 5}));
    EXPECT_EQ(admitted("-2"), Numbers({1, 2}));
}

TEST_F(CallFilterTest, AdmitsNames)
{
    EXPECT_EQ(admitted("op:regclosekey"), Numbers({4, 5}));
    EXPECT_EQ(admitted("op:Reg*Key*"), Numbers({1, 4, 5}));
    EXPECT_EQ(admitted("op:Reg"), Numbers());
    EXPECT_EQ(admitted("manager:directory"), Numbers({3}));
    EXPECT_EQ(admitted("caller:libbar"), Numbers({4}));
    EXPECT_EQ(admitted("thread:1"), Numbers({1, 2, 3, 4, 5}));
    EXPECT_EQ(admitted("thread:2"), Numbers());
}

TEST_F(CallFilterTest, JoinsTermsOfOneSortAndCrossesSorts)
{
    EXPECT_EQ(admitted("op:RegCloseKey,op:isFileExist"), Numbers({3, 4, 5}));
    EXPECT_EQ(admitted("1-4,op:RegCloseKey, caller:libbar"), Numbers({4}));
}

TEST_F(CallFilterTest, AdmitsFailuresAndWhatNeverReturned)
{
    EXPECT_EQ(admitted({}, true), Numbers({2, 5}));
    EXPECT_EQ(admitted("1-4", true), Numbers({2}));
}

TEST_F(CallFilterTest, RefusesTermsThatMakeNoSense)
{
    for (const char* set : {"", ",", "x", "3-2", "-", "op:", "what:x", "thread:x", "1-2-3",
                            "99999999999999999999", "1,,2"}) {
        CallFilter filter;
        EXPECT_FALSE(filter.add(QLatin1String(set))) << set;
        EXPECT_FALSE(filter.fault().isEmpty()) << set;
    }
}

} // namespace
} // namespace trace
