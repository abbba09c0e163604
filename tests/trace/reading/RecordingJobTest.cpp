#include "trace/reading/RecordingJob.h"
#include "tests/trace/reading/OpenRecordingTest.h"

namespace trace {
namespace {

using Made = MadeRecording;

class RecordingJobTest : public OpenRecordingTest
{
protected:
    QString description(const char* handle, qint64 call) const
    {
        return m_recording->analysis().handles().description(QLatin1String(handle), call);
    }
    qint64 counted() const
    {
        qint64 calls = 0;
        for (const auto& operation : m_recording->analysis().statistics().operations())
            calls += operation.calls;
        return calls;
    }
};

TEST_F(RecordingJobTest, KnowsAHandleFromTheCallThatMadeItToTheOneThatTookItBack)
{
    take(Made()
             .add(Made::close("0x5581"))
             .add(Made::open("HKEY_CURRENT_USER", "A", "0x5581"))
             .add(Made::query("0x5581", "v", ""))
             .add(Made::close("0x5581"))
             .add(Made::close("0x5581"))
             .add(Made::open("HKEY_CURRENT_USER", "B", "0x5581"))
             .bytes());
    EXPECT_TRUE(description("0x5581", 1).isNull());
    EXPECT_EQ(description("0x5581", 2), "HKEY_CURRENT_USER\\A");
    EXPECT_EQ(description("0x5581", 3), "HKEY_CURRENT_USER\\A");
    EXPECT_EQ(description("0x5581", 4), "HKEY_CURRENT_USER\\A");
    EXPECT_TRUE(description("0x5581", 5).isNull());
    EXPECT_EQ(description("0x5581", 6), "HKEY_CURRENT_USER\\B");
    EXPECT_TRUE(description("0x1", 6).isNull());
}

TEST_F(RecordingJobTest, GoesOnWithWhatHasCome)
{
    take(Made().add(Made::open("HKEY_CURRENT_USER", "A", "0x1")).bytes());
    EXPECT_EQ(counted(), 1);
    EXPECT_EQ(append(Made::line(2, Made::open("0x1", "B", "0x2"))), 2);
    EXPECT_EQ(counted(), 2);
    EXPECT_EQ(description("0x2", 2), "HKEY_CURRENT_USER\\A\\B");
    EXPECT_EQ(m_recording->analysis().leaks().all().size(), 2U);
    EXPECT_EQ(append({}), 0);
}

TEST_F(RecordingJobTest, BeginsAgainWhereACallHasReturnedMeanwhile)
{
    const Made::Call open = Made::open("HKEY_CURRENT_USER", "A", "0x1");
    take(Made::header() + Made::begun(1, open) + Made::line(2, Made::close("0x7")));
    EXPECT_EQ(m_recording->analysis().leaks().all().size(), 0U);
    EXPECT_EQ(append(Made::line(1, open)), 1);
    EXPECT_EQ(counted(), 2);
    EXPECT_EQ(m_recording->analysis().leaks().all().size(), 1U);
    EXPECT_EQ(description("0x1", 2), "HKEY_CURRENT_USER\\A");
}

TEST_F(RecordingJobTest, TakesAFileThatBecameShorterForAnotherRecording)
{
    take(Made().add(Made::close("0x1")).add(Made::close("0x2")).bytes());
    write("a.trace", Made().add(Made::close("0x3")).bytes());
    EXPECT_EQ(catchUp(), 1);
    EXPECT_EQ(counted(), 1);
    EXPECT_EQ(call(1).arguments.member("key").textOf("handle"), "0x3");
}

TEST_F(RecordingJobTest, NamesTheLibrariesThatCalled)
{
    Made::Call other = Made::close("0x1");
    other.caller = "libbar.so+0x7";
    take(Made().add(Made::close("0x1")).add(other).add(Made::close("0x2")).bytes());
    EXPECT_EQ(m_recording->analysis().statistics().libraries(),
              QStringList({"libbar.so", "libfoo.so"}));
}

} // namespace
} // namespace trace
