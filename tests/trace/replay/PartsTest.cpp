// What a replay is made of, each part by itself.

#include "trace/operations/RegisterOperations.h"
#include "trace/replay/BufferSize.h"
#include "trace/replay/GuardedBuffer.h"
#include "trace/replay/Invocation.h"
#include "trace/replay/RecordedText.h"
#include "trace/replay/ReplayReport.h"
#include "trace/replay/Surroundings.h"

#include <gtest/gtest.h>

namespace replay {
namespace {

TEST(RecordedText, KeepsWhatIsNoCharacter)
{
    const QString text = QStringLiteral("a\U0001F600") + QChar(0xD800) + QChar(0xDCFF);
    EXPECT_EQ(RecordedText::toWide(text),
              std::wstring(L"a\U0001F600") + static_cast<wchar_t>(0x100FF));
    const QString alone = QString(QChar(0xDC80)) + QLatin1Char('b') + QChar(0xD801);
    EXPECT_EQ(RecordedText::toWide(alone),
              (std::wstring{static_cast<wchar_t>(0xDC80), L'b', static_cast<wchar_t>(0xD801)}));
    EXPECT_EQ(RecordedText::wideLength(text), 3);
    EXPECT_EQ(RecordedText::toNarrow(QStringLiteral("\u4E2D") + QChar(0xDCFF)), "\xE4\xB8\xAD\xFF");
}

TEST(GuardedBuffer, TellsWhatIsWrittenBesideIt)
{
    GuardedBuffer buffer(3);
    buffer.data()[0] = 1;
    buffer.data()[2] = 1;
    EXPECT_TRUE(buffer.isWhole());
    buffer.data()[3] = 0;
    EXPECT_FALSE(buffer.isWhole());
    GuardedBuffer other(3);
    *(other.data() - 1) = 0;
    EXPECT_FALSE(other.isWhole());
}

TEST(GuardedBuffer, HasRoomWhereTheLimitIsNotKnown)
{
    GuardedBuffer buffer(3, GuardedBuffer::Limit::Unknown);
    buffer.data()[60000] = 0;
    EXPECT_TRUE(buffer.isWhole());
}

TEST(Surroundings, NameOperationsAndPartsThatThereAre)
{
    for (const trace::Manager& manager : trace::managers()) {
        for (const trace::Operation& operation : manager.operations) {
            int paths = 0;
            for (const trace::Parameter& parameter : operation.parameters)
                paths += Surroundings::isPath(operation, parameter) ? 1 : 0;
            EXPECT_LE(paths, 1) << operation.name;
            EXPECT_TRUE(paths == 1 || !Surroundings::isWriting(operation)) << operation.name;
        }
    }
    EXPECT_EQ(Surroundings::comparison("findFirstFile", "data.ftCreationTime.low"),
              Surroundings::Comparison::NotAtAll);
    EXPECT_EQ(Surroundings::comparison("findFirstFile", "data.nFileSizeLow"),
              Surroundings::Comparison::ByRole);
    EXPECT_EQ(Surroundings::comparison("GetBitmap", "(result)"), Surroundings::Comparison::ByRole);
}

TEST(ReplayReport, TravelsAsBytes)
{
    ReplayReport report;
    report.performed = 7;
    report.watchedAnswer = QStringLiteral("0");
    report.different.push_back({5, {{"data", "a", "b"}, {"(result)", "0", "1"}}});
    report.skipped.push_back({6, SkipReason::Hidden});
    report.skipped.push_back({7, SkipReason::Inner});
    ReplayReport read;
    ASSERT_TRUE(read.fromBytes(report.toBytes()));
    EXPECT_EQ(read.performed, 7);
    EXPECT_EQ(read.watchedAnswer, "0");
    ASSERT_EQ(read.different.size(), 1U);
    EXPECT_EQ(read.different[0].differences[1].is, "1");
    ASSERT_EQ(read.skipped.size(), 2U);
    EXPECT_EQ(read.skipped[0].reason, SkipReason::Hidden);
    EXPECT_EQ(read.skippedCount(), 1);
    EXPECT_FALSE(ReplayReport().fromBytes(report.toBytes().chopped(1)));
    EXPECT_FALSE(ReplayReport().fromBytes({}));
}

} // namespace
} // namespace replay
