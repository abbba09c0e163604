#include "trace/reading/Statistics.h"
#include "tests/trace/reading/RecordingTest.h"

#include <algorithm>

namespace trace {
namespace {

using Made = MadeRecording;

class StatisticsTest : public RecordingTest
{
protected:
    void take(const QByteArray& bytes)
    {
        m_file = read(bytes);
        m_statistics = std::make_unique<Statistics>(*m_file);
        walk(*m_file, [this](const CallEntry& entry) { m_statistics->add(entry); });
    }

    Statistics::OperationCount operation(const char* name) const
    {
        for (const Statistics::OperationCount& count : m_statistics->operations()) {
            if (count.operation == QLatin1String(name))
                return count;
        }
        return {};
    }

    /// What was asked for, each as "place|name asked/absent", the most asked for first.
    QStringList asked(AskedFor::Kind kind) const
    {
        QStringList lines;
        for (const Statistics::AskedCount& count : m_statistics->asked()) {
            if (count.kind == kind)
                lines += QStringLiteral("%1|%2 %3/%4")
                             .arg(count.place, count.name)
                             .arg(count.asked)
                             .arg(count.absent);
        }
        return lines;
    }

    std::unique_ptr<TraceFile> m_file;
    std::unique_ptr<Statistics> m_statistics;
};

TEST_F(StatisticsTest, CountsCallsFailuresAndTimeByOperation)
{
    take(Made()
             .add(Made::query("HKEY_CURRENT_USER", "v", ""))
             .add(Made::query("HKEY_CURRENT_USER", "v", "07000000"))
             .add(Made::close("0x1"))
             .addBytes(Made::begun(4, Made::close("0x1")))
             .bytes());
    const Statistics::OperationCount query = operation("RegQueryValueExW");
    EXPECT_EQ(query.manager, "register");
    EXPECT_EQ(query.calls, 2);
    EXPECT_EQ(query.failures, 1);
    EXPECT_EQ(query.time, 3000);
    EXPECT_EQ(query.longest, 2000);
    EXPECT_EQ(operation("RegCloseKey").unreturned, 1);
    EXPECT_EQ(operation("RegCloseKey").time, 3000);
    EXPECT_FALSE(query.isFixed);
}

TEST_F(StatisticsTest, TellsOperationsWithAFixedResult)
{
    take(Made().add({"message", "messageBox", "{}", "7"}).bytes());
    EXPECT_TRUE(operation("messageBox").isFixed);
}

TEST_F(StatisticsTest, NamesKeysAndValuesByTheirPaths)
{
    take(Made()
             .add(Made::open("HKEY_CURRENT_USER", "A/B", "0x1"))
             .add(Made::query("0x1", "v", "07000000"))
             .add(Made::query("0x1", "v", "07000000"))
             .add(Made::query("0x1", "w", ""))
             .add(Made::open("0x1", "C", ""))
             .bytes());
    EXPECT_EQ(asked(AskedFor::Kind::Value),
              QStringList({"HKEY_CURRENT_USER\\A\\B|v 2/0", "HKEY_CURRENT_USER\\A\\B|w 1/1"}));
    EXPECT_EQ(asked(AskedFor::Kind::Key),
              QStringList({"HKEY_CURRENT_USER\\A\\B| 1/0", "HKEY_CURRENT_USER\\A\\B\\C| 1/1"}));
}

// The type is written even where the buffer is too small: then the value is there.
TEST_F(StatisticsTest, DoesNotTakeATooSmallBufferForAbsence)
{
    Made::Call query = Made::query("HKEY_CURRENT_USER", "v", "");
    query.outputs = "{\"type\":1}";
    take(Made().add(query).bytes());
    EXPECT_EQ(asked(AskedFor::Kind::Value), QStringList("HKEY_CURRENT_USER|v 1/0"));
}

TEST_F(StatisticsTest, TakesTheFallbackOfAProfileForAbsence)
{
    const QByteArray arguments =
        "{\"section\":{\"text\":\"s\"},\"key\":{\"text\":\"k\"},\"fallback\":{\"text\":\"no\"},"
        "\"buffer\":{\"pointer\":\"0x1\"},\"size\":100,\"file\":{\"text\":\"/p.ini\"}}";
    take(Made()
             .add({"profile", "GetPrivateProfileStringW", arguments, "2",
                   "{\"buffer\":{\"text\":\"no\"}}"})
             .add({"profile", "GetPrivateProfileStringW", arguments, "3",
                   "{\"buffer\":{\"text\":\"yes\"}}"})
             .add({"profile", "GetPrivateProfileStringA", arguments, "0",
                   "{\"buffer\":{\"text\":\"\"}}"})
             .bytes());
    EXPECT_EQ(asked(AskedFor::Kind::Entry), QStringList("/p.ini|[s] k 3/2"));
}

TEST_F(StatisticsTest, KnowsAFallbackThatWasCut)
{
    const auto recording = [](const char* written) {
        return Made()
            .add({"profile", "GetPrivateProfileStringW",
                  "{\"section\":{\"text\":\"s\"},\"key\":{\"text\":\"k\"},\"fallback\":{\"text\":"
                  "\"fallback\"},\"size\":4,\"file\":{\"text\":\"/p.ini\"}}",
                  "7", "{\"buffer\":{\"text\":\"" + QByteArray(written) + "\"}}"})
            .bytes();
    };
    take(recording("fal"));
    EXPECT_EQ(asked(AskedFor::Kind::Entry), QStringList("/p.ini|[s] k 1/1"));
    take(recording("fa"));
    EXPECT_EQ(asked(AskedFor::Kind::Entry), QStringList("/p.ini|[s] k 1/0"));
}

// Nothing was asked there: a null argument or a size of 0 gets nothing.
TEST_F(StatisticsTest, DoesNotTakeAnUnwrittenBufferForAbsence)
{
    const QByteArray arguments =
        "{\"section\":{\"text\":\"s\"},\"key\":{\"text\":\"k\"},\"fallback\":null,\"buffer\":null,"
        "\"size\":9,\"file\":{\"text\":\"/p.ini\"}}";
    take(Made()
             .add({"profile", "GetPrivateProfileStringW", arguments, "0"})
             .add({"profile", "GetPrivateProfileStringA", arguments, "0"})
             .add({"directory", "isFileExist", "{\"path\":null}", "0"})
             .bytes());
    EXPECT_EQ(asked(AskedFor::Kind::Entry), QStringList("/p.ini|[s] k 2/0"));
    EXPECT_EQ(asked(AskedFor::Kind::File), QStringList());
}

TEST_F(StatisticsTest, CountsFiles)
{
    const QByteArray pattern = "{\"pattern\":{\"text\":\"/x/*\"},\"data\":{\"pointer\":\"0x1\"}}";
    take(Made()
             .add({"directory", "findFirstFile", pattern, "{\"handle\":\"0xffffffffffffffff\"}"})
             .add({"directory", "isFileExist", "{\"path\":{\"text\":\"/y\"}}", "0",
                   "{\"realPath\":{\"text\":\"/y\"}}"})
             .add({"directory", "isFileExist", "{\"path\":{\"text\":\"/y\"}}", "1",
                   "{\"realPath\":{\"text\":\"/Y\"}}"})
             .bytes());
    EXPECT_EQ(asked(AskedFor::Kind::File), QStringList({"/y| 2/1", "/x/*| 1/1"}));
}

} // namespace
} // namespace trace
