#include "tests/trace/recorder/RecordedRun.h"
#include "tests/trace/replay/ReplayTest.h"
#include "trace/Operations.h"

namespace replay {
namespace {

// A real program under the recorder, with the real command; then its recording in a replay.
class RecordedReplayTest : public ReplayTest
{
protected:
    void SetUp() override
    {
        if (qstrlen(QUAYSIDE_EMULATOR) > 0)
            GTEST_SKIP() << "an emulator starts no programs of its own kind";
    }

    QByteArray record(const QStringList& words, const QStringList& options = {})
    {
        m_run.record(QStringList(QStringLiteral(QUAYSIDE_RECORDED)) + words, options);
        return m_run.read(QStringLiteral("recording"));
    }

    RecordedRun m_run;
};

TEST_F(RecordedReplayTest, PerformsEveryOperationWithoutADifference)
{
    const QByteArray recording = record({"everything"}, {"--all"});
    for (const trace::Manager& manager : trace::managers()) {
        for (const trace::Operation& operation : manager.operations) {
            const QByteArray name = QByteArray("\"op\":\"") + operation.name + '"';
            EXPECT_TRUE(operation.isDestructor || recording.contains(name)) << operation.name;
        }
    }
    const ReplayReport report = replayWithFiles(recording);
    EXPECT_EQ(differences(report), "");
    EXPECT_FALSE(report.hasCrashed());
    EXPECT_EQ(report.skippedCount(), 0) << skipped(report).toStdString();
    EXPECT_GT(report.performed, 110);
}

TEST_F(RecordedReplayTest, ComparesLengthsWhereValuesAreShortened)
{
    const ReplayReport report = replayWithFiles(record({"everything"}, {"--text", "3"}));
    EXPECT_EQ(differences(report), "");
    EXPECT_GT(report.skippedCount(), 0);
    EXPECT_GT(report.performed, 50);
}

TEST_F(RecordedReplayTest, PerformsWhatThreadsAndProceduresCall)
{
    const ReplayReport report = replayWithFiles(record({"across"}));
    EXPECT_EQ(differences(report), "");
    EXPECT_GE(report.performed, 8);
}

TEST_F(RecordedReplayTest, PerformsWhatCameBeforeACrash)
{
    const ReplayReport report = replayWithFiles(record({"crash"}));
    EXPECT_EQ(differences(report), "");
    EXPECT_GE(report.performed, 2);
    ASSERT_FALSE(report.skipped.empty());
    EXPECT_EQ(report.skipped.front().reason, SkipReason::NeverReturned);
}

TEST_F(RecordedReplayTest, PerformsARandomSessionWithoutADifference)
{
    // The sanitizers make each call many times as slow.
    const char* const count = QUAYSIDE_SANITIZED ? "20000" : "100000";
    const ReplayReport report = replayWithFiles(record({"random", "14", count}));
    EXPECT_EQ(differences(report), "");
    EXPECT_FALSE(report.hasCrashed()) << report.crashedIn;
    EXPECT_EQ(report.skippedCount(), 0);
    EXPECT_GT(report.performed, QByteArray(count).toInt() / 2);
}

} // namespace
} // namespace replay
