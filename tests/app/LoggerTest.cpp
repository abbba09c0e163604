#include "app/Logger.h"

#include "tests/support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ctime>
#include <iostream>
#include <sstream>
#include <type_traits>

namespace {

constexpr char timePattern[] = R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)";

// The line with its time replaced, so that it can be compared.
QString timeless(QString text)
{
    return text.replace(QRegularExpression(QString::fromLatin1(timePattern)),
                        QStringLiteral("TIME"));
}

class LoggerTest : public testing::Test
{
protected:
    std::string path() const { return folder.filePath(QStringLiteral("log.txt")).toStdString(); }

    QString content() const
    {
        QFile file(QString::fromStdString(path()));
        return file.open(QFile::ReadOnly) ? timeless(QString::fromUtf8(file.readAll())) : QString();
    }

    static void start() { testing::internal::CaptureStdout(); }
    static QString written()
    {
        return timeless(QString::fromStdString(testing::internal::GetCapturedStdout()));
    }

    QTemporaryDir folder;
};

const QString startBanner = QStringLiteral("TIME : === Start logging ===\n");
const QString endBanner = QStringLiteral("TIME : === End logging ===\r\n");

TEST(CurrTime, IsTheLocalTimeNow)
{
    const std::time_t before = std::time(nullptr);
    const std::string text = currTime();
    const std::time_t after = std::time(nullptr);
    std::tm fields{};
    ASSERT_NE(nullptr, strptime(text.c_str(), "%Y-%m-%d %H:%M:%S", &fields));
    fields.tm_isdst = -1;
    const std::time_t parsed = std::mktime(&fields);
    EXPECT_LE(before, parsed);
    EXPECT_GE(after, parsed);
    EXPECT_EQ(19U, text.size());
}

// A device may get its time zone while the program runs. The expectation must not use localtime,
// which would take the new zone over by itself.
TEST(CurrTime, FollowsAChangeOfTheTimeZone)
{
    const QByteArray former = qgetenv("TZ");
    currTime();
    qputenv("TZ", "Asia/Shanghai");
    const std::string text = currTime();
    const std::time_t there = std::time(nullptr) + 8 * 3600;
    qputenv("TZ", former);
    tzset();

    std::tm fields{};
    ASSERT_NE(nullptr, strptime(text.c_str(), "%Y-%m-%d %H:%M:%S", &fields));
    EXPECT_NEAR(static_cast<double>(there), static_cast<double>(timegm(&fields)), 2);
}

// The members of a logger, in order.
struct Mirror
{
    std::ofstream file;
    int target;
    std::string path;
    int level;
};

// What a logger holds where the mirror has this member.
template <typename Member>
const Member& memberOf(const Logger& logger, Member Mirror::*member)
{
    const Mirror mirror{};
    const auto offset =
        reinterpret_cast<const char*>(&(mirror.*member)) - reinterpret_cast<const char*>(&mirror);
    return *reinterpret_cast<const Member*>(reinterpret_cast<const char*>(&logger) + offset);
}

TEST_F(LoggerTest, HasItsMembersInOrderAndNoVirtualOperation)
{
    start();
    const Logger logger(Logger::file_and_console, Logger::error, path());
    written();
    EXPECT_EQ(sizeof(Mirror), sizeof(Logger));
    EXPECT_TRUE(memberOf(logger, &Mirror::file).is_open());
    EXPECT_EQ(2, memberOf(logger, &Mirror::target));
    EXPECT_EQ(path(), memberOf(logger, &Mirror::path));
    EXPECT_EQ(3, memberOf(logger, &Mirror::level));
    EXPECT_FALSE(std::is_polymorphic_v<Logger>);
    EXPECT_TRUE(std::is_signed_v<std::underlying_type_t<Logger::log_level>>);
}

TEST_F(LoggerTest, DefaultLoggerAnnouncesItselfOnStandardOutputOnly)
{
    start();
    {
        const Logger logger;
    }
    EXPECT_EQ(startBanner, written());
}

TEST_F(LoggerTest, DefaultLoggerWritesEveryLevel)
{
    start();
    Logger logger;
    logger.DEBUG("text");
    EXPECT_EQ(startBanner + "[DEBUG] TIME : text\n", written());
}

TEST_F(LoggerTest, EachLevelHasItsPrefix)
{
    start();
    Logger logger(Logger::console, Logger::debug, std::string());
    logger.DEBUG("a");
    logger.INFO("b");
    logger.WARNING("c");
    logger.ERRORS("d");
    EXPECT_EQ(startBanner + "[DEBUG] TIME : a\n[INFO] TIME : b\n[WARNING] TIME : c\n"
                            "[ERROR] TIME : d\n",
              written());
}

TEST_F(LoggerTest, UnknownLevelHasNoPrefix)
{
    start();
    Logger logger(Logger::console, Logger::debug, std::string());
    logger.output("text", static_cast<Logger::log_level>(7));
    EXPECT_EQ(startBanner + "TIME : text\n", written());
}

TEST_F(LoggerTest, NegativeLevelLiesBelowTheThreshold)
{
    start();
    Logger logger(Logger::console, Logger::debug, std::string());
    logger.output("text", static_cast<Logger::log_level>(-1));
    EXPECT_EQ(startBanner, written());
}

TEST_F(LoggerTest, ThresholdFiltersTheConsole)
{
    start();
    Logger logger(Logger::console, Logger::warning, std::string());
    logger.INFO("below");
    logger.WARNING("at");
    logger.ERRORS("above");
    EXPECT_EQ(startBanner + "[WARNING] TIME : at\n[ERROR] TIME : above\n", written());
}

TEST_F(LoggerTest, ThresholdDoesNotFilterTheFile)
{
    start();
    {
        Logger logger(Logger::file, Logger::error, path());
        logger.DEBUG("below");
    }
    EXPECT_EQ(QString(), written());
    EXPECT_EQ(startBanner + "[DEBUG] TIME : below\n" + endBanner, content());
}

TEST_F(LoggerTest, BothTargetsGetTheLineAtTheThreshold)
{
    start();
    {
        Logger logger(Logger::file_and_console, Logger::warning, path());
        logger.INFO("below");
        logger.WARNING("at");
    }
    EXPECT_EQ(startBanner + "[WARNING] TIME : at\n", written());
    EXPECT_EQ(startBanner + "[INFO] TIME : below\n[WARNING] TIME : at\n" + endBanner, content());
}

TEST_F(LoggerTest, UnknownTargetBehavesLikeBoth)
{
    start();
    {
        Logger logger(static_cast<Logger::log_target>(9), Logger::debug, path());
        logger.INFO("text");
    }
    EXPECT_EQ(startBanner + "[INFO] TIME : text\n", written());
    EXPECT_EQ(startBanner + "[INFO] TIME : text\n" + endBanner, content());
}

TEST_F(LoggerTest, ConsoleTargetOpensNoFile)
{
    start();
    {
        Logger logger(Logger::console, Logger::debug, path());
    }
    written();
    EXPECT_FALSE(QFile::exists(QString::fromStdString(path())));
}

TEST_F(LoggerTest, SuccessiveLoggersAppend)
{
    for (const char* text : {"first", "second"}) {
        Logger logger(Logger::file, Logger::debug, path());
        logger.INFO(text);
    }
    EXPECT_EQ(startBanner + "[INFO] TIME : first\n" + endBanner + startBanner +
                  "[INFO] TIME : second\n" + endBanner,
              content());
}

TEST_F(LoggerTest, FileIsFlushedAfterEveryLine)
{
    Logger logger(Logger::file, Logger::debug, path());
    logger.INFO("text");
    EXPECT_EQ(startBanner + "[INFO] TIME : text\n", content());
}

TEST_F(LoggerTest, GoesOnAfterTheDiskHasBeenFull)
{
    {
        Logger logger(Logger::file, Logger::debug, path());
        logger.INFO("before");
        {
            const FullDisk disk;
            logger.INFO("meanwhile");
        }
        logger.INFO("after");
    }
    EXPECT_EQ(startBanner + "[INFO] TIME : before\n[INFO] TIME : meanwhile\n[INFO] TIME : after\n" +
                  endBanner,
              content());
}

TEST_F(LoggerTest, LosesWhatItsBufferDoesNotKeepWhileTheDiskIsFull)
{
    {
        Logger logger(Logger::file, Logger::debug, path());
        logger.INFO("before");
        {
            const FullDisk disk;
            for (int i = 0; i < 10; ++i)
                logger.INFO(std::string(4000, 'x'));
        }
        logger.INFO("after");
    }
    EXPECT_TRUE(content().startsWith(startBanner + "[INFO] TIME : before\n"));
    EXPECT_TRUE(content().endsWith("[INFO] TIME : after\n" + endBanner));
    EXPECT_GT(20000, content().size());
}

TEST_F(LoggerTest, EndsAFileThatTheDiskHadNoRoomFor)
{
    {
        Logger logger(Logger::file, Logger::debug, path());
        const FullDisk disk;
        logger.INFO("text");
    }
    EXPECT_TRUE(content().endsWith(endBanner));
}

// A file that could not be opened stays one that is not.
TEST_F(LoggerTest, IsSilentWhereTheFileCanBeOpenedLater)
{
    const QString later = folder.filePath("later");
    {
        Logger logger(Logger::file, Logger::debug, later.toStdString() + "/log.txt");
        EXPECT_TRUE(QDir().mkpath(later));
        logger.INFO("lost");
    }
    EXPECT_FALSE(QFile::exists(later + "/log.txt"));
}

// Takes what is written to std::cout while it lives, and counts how often that is flushed.
class SyncCounter : public std::stringbuf
{
public:
    SyncCounter() : m_former(std::cout.rdbuf(this)) {}
    ~SyncCounter() override { std::cout.rdbuf(m_former); }

    int count() const { return m_count; }

protected:
    int sync() override
    {
        ++m_count;
        return 0;
    }

private:
    std::streambuf* m_former;
    int m_count = 0;
};

TEST_F(LoggerTest, DefaultLoggerFlushesItsAnnouncement)
{
    const SyncCounter output;
    const Logger logger;
    EXPECT_EQ(1, output.count());
    EXPECT_EQ(startBanner, timeless(QString::fromStdString(output.str())));
}

TEST_F(LoggerTest, StandardOutputIsNotFlushedOtherwise)
{
    for (const auto target : {Logger::console, Logger::file_and_console}) {
        const SyncCounter output;
        {
            Logger logger(target, Logger::debug, path());
            logger.INFO("text");
        }
        EXPECT_EQ(0, output.count()) << target;
        EXPECT_EQ(startBanner + "[INFO] TIME : text\n",
                  timeless(QString::fromStdString(output.str())));
    }
}

TEST_F(LoggerTest, TextIsWrittenAsGiven)
{
    const std::string text("two\nlines\0 and \xff", 16);
    start();
    Logger logger(Logger::console, Logger::debug, std::string());
    logger.INFO(text);
    const std::string output = testing::internal::GetCapturedStdout();
    EXPECT_NE(std::string::npos, output.find(" : " + text + "\n"));
}

TEST_F(LoggerTest, FileThatCannotBeOpenedIsSilent)
{
    start();
    const std::string unwritable = path() + "/no/such/folder";
    {
        Logger logger(Logger::file, Logger::debug, unwritable);
        logger.ERRORS("lost");
        Logger both(Logger::file_and_console, Logger::debug, unwritable);
        both.ERRORS("kept");
    }
    EXPECT_EQ(startBanner + "[ERROR] TIME : kept\n", written());
    EXPECT_FALSE(QFile::exists(QString::fromStdString(path())));
}

} // namespace
