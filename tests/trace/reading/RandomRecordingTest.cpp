#include "tests/support/RandomRecording.h"

#include "tests/trace/reading/RecordingTest.h"
#include "trace/reading/CallText.h"
#include "trace/reading/Leaks.h"
#include "trace/reading/Statistics.h"
#include "trace/reading/TraceDifference.h"

namespace trace {
namespace {

constexpr int calls = 5000;
constexpr int rounds = 60;

class RandomRecordingTest : public RecordingTest
{
protected:
    /// All that is read of a recording: the lines of its calls.
    static QStringList lines(TraceFile& file)
    {
        QStringList lines;
        HandleTable handles;
        const CallText text(handles);
        Statistics statistics(file);
        walk(file, [&](const CallEntry& entry) {
            const std::optional<Call> call = file.call(entry);
            if (call)
                lines += text.line(*call, file.operation(entry));
            handles.follow(file, entry);
            statistics.add(entry);
        });
        return lines;
    }
};

TEST_F(RandomRecordingTest, LosesNoCallAndNoHandle)
{
    RandomRecording recording(1);
    const auto file = read(recording.make(calls));
    EXPECT_GE(file->calls().size(), static_cast<std::size_t>(calls));
    EXPECT_EQ(file->faultCount(), 0);
    Leaks leaks(*file);
    walk(*file, [&leaks](const CallEntry& entry) { leaks.add(entry); });
    EXPECT_EQ(leaks.all().size(), static_cast<std::size_t>(recording.openKeys()));
    EXPECT_GT(recording.opened(), recording.openKeys());
}

TEST_F(RandomRecordingTest, DiffersFromItselfInNothing)
{
    const QByteArray bytes = RandomRecording(2).make(calls);
    const auto first = read(bytes, "a.trace");
    const auto second = read(bytes, "b.trace");
    TraceDifference difference(*first, *second);
    while (difference.step()) {
    }
    EXPECT_TRUE(difference.rows().empty());
}

TEST_F(RandomRecordingTest, IsReadInPiecesAsInOne)
{
    const QByteArray bytes = RandomRecording(3).make(calls / 10);
    const QStringList whole = lines(*read(bytes));
    write("pieces.trace", MadeRecording::header());
    TraceFile file(path("pieces.trace"));
    ASSERT_TRUE(file.open());
    std::mt19937 random(3);
    int size = MadeRecording::header().size();
    while (size < bytes.size()) {
        size = qMin(bytes.size(), size + std::uniform_int_distribution<int>(1, 2000)(random));
        write("pieces.trace", bytes.left(size));
        readOn(file);
    }
    EXPECT_EQ(lines(file), whole);
    EXPECT_EQ(file.faultCount(), 0);
}

TEST_F(RandomRecordingTest, IsReadWithoutACrashWhereverItIsCut)
{
    const QByteArray bytes = RandomRecording(4).make(200);
    std::mt19937 random(4);
    for (int round = 0; round < rounds; ++round) {
        const int size = std::uniform_int_distribution<int>(MadeRecording::header().size(),
                                                            bytes.size())(random);
        const QByteArray cut = bytes.left(size);
        const auto file = read(cut);
        EXPECT_EQ(file->faultCount(), cut.endsWith('\n') ? 0 : 1);
        EXPECT_EQ(lines(*file).size(), cut.count('\n') - 1);
    }
}

TEST_F(RandomRecordingTest, IsReadWithoutACrashWhateverIsDamaged)
{
    const QByteArray bytes = RandomRecording(5).make(200);
    std::mt19937 random(5);
    for (int round = 0; round < rounds; ++round) {
        QByteArray damaged = bytes;
        for (int i = 0; i < 50; ++i) {
            const int place = std::uniform_int_distribution<int>(MadeRecording::header().size(),
                                                                 bytes.size() - 1)(random);
            damaged[place] = static_cast<char>(std::uniform_int_distribution<int>(0, 255)(random));
        }
        const auto file = read(damaged);
        EXPECT_LE(lines(*file).size(), static_cast<int>(file->calls().size()));
        EXPECT_GT(file->calls().size(), 100U);
        Leaks leaks(*file);
        walk(*file, [&leaks](const CallEntry& entry) { leaks.add(entry); });
    }
}

} // namespace
} // namespace trace
