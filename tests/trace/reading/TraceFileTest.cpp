#include "tests/trace/reading/RecordingTest.h"
#include "trace/reading/GrowingLines.h"

namespace trace {
namespace {

using TraceFileTest = RecordingTest;
using Made = MadeRecording;

const Made::Call openA = Made::open("HKEY_CURRENT_USER", "A", "0x5581");

TEST_F(TraceFileTest, ReadsHeaderLibrariesAndEnd)
{
    const QByteArray library = "{\"library\":{\"path\":\"/x/libbar.so\",\"buildId\":\"cd\"}}";
    const QByteArray end = "{\"ended\":{\"calls\":1,\"time\":99}}";
    const auto file = read(Made().addBytes(library + '\n').add(openA).addBytes(end + '\n').bytes());
    EXPECT_EQ(file->header().textOf("architecture"), "x86_64");
    ASSERT_EQ(file->headLines().size(), 2U);
    EXPECT_EQ(file->headLines()[1], library);
    EXPECT_EQ(file->endLine(), end);
    EXPECT_EQ(file->calls().size(), 1U);
    EXPECT_EQ(file->faultCount(), 0);
}

TEST_F(TraceFileTest, KeepsWhatFiltersNeed)
{
    const auto file = read(Made().add(openA).add(Made::query("0x5581", "v", "")).bytes());
    const CallEntry& query = file->calls()[1];
    EXPECT_EQ(query.number, 2);
    EXPECT_EQ(query.time, 100);
    EXPECT_EQ(query.duration, 2000);
    EXPECT_EQ(file->name(query.operation), "RegQueryValueExW");
    EXPECT_EQ(file->name(query.manager), "register");
    EXPECT_EQ(file->name(query.caller), "libfoo.so+0x10");
    EXPECT_TRUE(query.isFailure);
    EXPECT_FALSE(file->calls()[0].isFailure);
}

TEST_F(TraceFileTest, ReadsACallInFull)
{
    const auto file = read(Made().add(openA).bytes());
    const std::optional<Call> call = file->call(file->calls()[0]);
    ASSERT_TRUE(call);
    EXPECT_EQ(call->operation, "RegOpenKeyExW");
    EXPECT_EQ(call->object, "0x1");
    EXPECT_EQ(call->arguments.member("subKey").textOf("text"), "A");
    EXPECT_EQ(call->outputs.member("result").textOf("handle"), "0x5581");
    EXPECT_TRUE(call->hasReturned());
}

TEST_F(TraceFileTest, LetsTheLaterLineOfACallCount)
{
    const auto file = read(Made::header() + Made::begun(1, openA) +
                           Made::line(2, Made::close("0x1")) + Made::line(1, openA));
    ASSERT_EQ(file->calls().size(), 2U);
    EXPECT_EQ(file->calls()[0].number, 1);
    EXPECT_TRUE(file->calls()[0].hasReturned());
    EXPECT_EQ(file->line(file->calls()[0]) + '\n', Made::line(1, openA));
}

TEST_F(TraceFileTest, KnowsACallThatNeverReturned)
{
    const auto file = read(Made::header() + Made::begun(1, openA));
    EXPECT_FALSE(file->calls().at(0).hasReturned());
    EXPECT_FALSE(file->calls().at(0).isFailure);
}

TEST_F(TraceFileTest, SortsCallsOfOtherThreadsByNumber)
{
    const auto file = read(Made::header() + Made::line(3, openA) + Made::line(1, openA) +
                           Made::line(7, openA) + Made::line(2, openA));
    QVector<qint64> numbers;
    for (const CallEntry& entry : file->calls())
        numbers += entry.number;
    EXPECT_EQ(numbers, QVector<qint64>({1, 2, 3, 7}));
    EXPECT_EQ(file->indexOf(7), 3);
    EXPECT_EQ(file->indexOf(4), -1);
}

TEST_F(TraceFileTest, TellsDamagedLinesWithTheirNumbers)
{
    const auto file =
        read(Made::header() + Made::line(1, openA) + "{\"n\":2,\"t\"\n" + Made::line(3, openA) +
             "\n" + QByteArray("\0\0\0\n", 4) + "{\"n\":0}\n" + Made::line(4, openA));
    EXPECT_EQ(file->calls().size(), 3U);
    EXPECT_EQ(faults(*file), QStringList({"Line 3 is damaged.", "Line 5 is damaged.",
                                          "Line 6 is damaged.", "Line 7 is damaged."}));
}

TEST_F(TraceFileTest, TellsACutLastLine)
{
    const auto file = read(Made::header() + Made::line(1, openA) + Made::line(2, openA).chopped(9));
    EXPECT_EQ(file->calls().size(), 1U);
    EXPECT_EQ(faults(*file), QStringList("Line 3 is cut off: the recording has ended within it."));
}

TEST_F(TraceFileTest, ReadsNulsAndInvalidTextWithoutACrash)
{
    const QByteArray invalid = Made::line(1, Made::open("HKEY_CURRENT_USER", "\xff\xc3", "0x1"));
    const QByteArray nul = Made::line(2, Made::open("HKEY_CURRENT_USER", QByteArray(1, 0), "0x2"));
    const auto file = read(Made::header() + invalid + nul);
    ASSERT_EQ(file->calls().size(), 1U);
    EXPECT_EQ(file->call(file->calls()[0])->arguments.member("subKey").textOf("text"),
              QString(2, QChar(0xfffd)));
    EXPECT_EQ(file->faultCount(), 1);
}

TEST_F(TraceFileTest, ReadsLinesThatAreLongerThanAPiece)
{
    const QByteArray name(3 * static_cast<int>(TraceFile::usualPiece), 'x');
    const auto file =
        read(Made().add(Made::open("HKEY_CURRENT_USER", name, "0x1")).add(openA).bytes());
    ASSERT_EQ(file->calls().size(), 2U);
    EXPECT_EQ(file->call(file->calls()[0])->arguments.member("subKey").textOf("text").size(),
              name.size());
}

TEST_F(TraceFileTest, DropsLinesWithoutEnd)
{
    QByteArray longest(static_cast<int>(GrowingLines::longestLine) + 1000, 'x');
    longest += '\n';
    const auto file = read(Made::header() + longest + Made::line(1, openA));
    EXPECT_EQ(file->calls().size(), 1U);
    EXPECT_EQ(faults(*file), QStringList("Line 2 is too long."));
}

TEST_F(TraceFileTest, FollowsARecordingThatGrows)
{
    const auto file = read(Made::header() + Made::line(1, openA) + Made::line(2, openA).left(30));
    EXPECT_EQ(file->faultCount(), 1);
    write("a.trace", Made::header() + Made::line(1, openA) + Made::line(2, openA));
    EXPECT_TRUE(file->readOn());
    readOn(*file);
    EXPECT_EQ(file->calls().size(), 2U);
    EXPECT_EQ(file->faultCount(), 0);
    EXPECT_FALSE(file->readOn());
}

TEST_F(TraceFileTest, ReadsALastLineAgainThatWasReplaced)
{
    const QByteArray former = Made::header() + Made::line(1, openA);
    const auto file = read(former + Made::begun(2, openA));
    EXPECT_FALSE(file->calls()[1].hasReturned());
    write("a.trace", former + Made::line(2, openA) + Made::begun(3, openA));
    readOn(*file);
    ASSERT_EQ(file->calls().size(), 3U);
    EXPECT_TRUE(file->calls()[1].hasReturned());
    EXPECT_EQ(file->line(file->calls()[1]) + '\n', Made::line(2, openA));
    EXPECT_EQ(file->faultCount(), 0);
}

// The reader may come while the line is being replaced.
TEST_F(TraceFileTest, ForgetsTheFaultOfALineThatWasBeingReplaced)
{
    const QByteArray former = Made::header() + Made::line(1, openA);
    const QByteArray begun = Made::begun(2, openA);
    const QByteArray whole = Made::line(2, openA);
    const auto file = read(former + whole.left(begun.size() - 1) + begun.right(1));
    EXPECT_EQ(file->faultCount(), 1);
    write("a.trace", former + whole);
    readOn(*file);
    EXPECT_EQ(file->faultCount(), 0);
    EXPECT_TRUE(file->faults().empty());
    EXPECT_EQ(file->calls().size(), 2U);
}

TEST_F(TraceFileTest, BeginsAnewWhereTheFileHasBecomeShorter)
{
    const auto file = read(Made().add(openA).add(openA).bytes());
    write("a.trace", Made::header() + Made::line(5, Made::close("0x1")));
    readOn(*file);
    readOn(*file);
    ASSERT_EQ(file->calls().size(), 1U);
    EXPECT_EQ(file->name(file->calls()[0].operation), "RegCloseKey");
}

TEST_F(TraceFileTest, RefusesWhatIsNoRecording)
{
    for (const char* bytes : {"", "text\n", "{}\n", "{\"quaysideTrace\":2}\n"}) {
        write("other", bytes);
        TraceFile file(path("other"));
        EXPECT_FALSE(file.open()) << bytes;
        EXPECT_TRUE(file.error().contains(path("other"))) << bytes;
    }
    TraceFile missing(path("missing"));
    EXPECT_FALSE(missing.open());
    EXPECT_FALSE(missing.error().isEmpty());
    TraceFile folder(path("."));
    EXPECT_FALSE(folder.open());
}

} // namespace
} // namespace trace
