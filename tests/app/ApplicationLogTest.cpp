#include "app/ApplicationLog.h"

#include "tests/support/ForkedCheck.h"
#include "tests/support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

TEST(ApplicationLog, LiesBelowTheStateFolder)
{
    const QString state = QString::fromLocal8Bit(qgetenv("XDG_STATE_HOME"));
    EXPECT_TRUE(ApplicationLog::path().startsWith(state + "/"));
    qputenv("XDG_STATE_HOME", "relative");
    EXPECT_TRUE(ApplicationLog::path().contains("/.local/state/"));
    qputenv("XDG_STATE_HOME", state.toLocal8Bit());
}

// The file of a log that runs, and what happens to it meanwhile.
class ApplicationLogFile : public testing::Test
{
protected:
    ApplicationLogFile() { logInfo("before"); }
    ~ApplicationLogFile() override
    {
        QFile::remove(path);
        QFile::remove(path + ".1");
    }

    static QByteArray content(const QString& file)
    {
        QFile opened(file);
        return opened.open(QFile::ReadOnly) ? opened.readAll() : QByteArray("none");
    }

    mode_t permissions() const
    {
        struct stat status = {};
        EXPECT_EQ(0, stat(QFile::encodeName(path).constData(), &status));
        return status.st_mode & 07777U;
    }

    const QString path = ApplicationLog::path();
};

TEST_F(ApplicationLogFile, IsForTheUserAlone)
{
    EXPECT_EQ(0600U, permissions());
}

TEST_F(ApplicationLogFile, OfAnEarlierVersionBecomesTheUsersAlone)
{
    QFile::remove(path);
    QFile earlier(path);
    EXPECT_TRUE(earlier.open(QFile::WriteOnly));
    EXPECT_EQ(8, earlier.write("earlier\n"));
    earlier.close();
    EXPECT_TRUE(earlier.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                       QFile::ReadOther));
    logInfo("text");
    EXPECT_EQ(0600U, permissions());
    EXPECT_TRUE(content(path).startsWith("earlier\n"));
}

TEST_F(ApplicationLogFile, IsMadeAnewWhereItWasRemoved)
{
    EXPECT_TRUE(QFile::remove(path));
    logInfo("after");
    EXPECT_TRUE(content(path).contains("=== Start logging ===\n"));
    EXPECT_TRUE(content(path).endsWith(" : after\n"));
    EXPECT_FALSE(content(path).contains("before"));
    EXPECT_EQ(0600U, permissions());
}

TEST_F(ApplicationLogFile, IsMadeAnewWhereItsFolderWasRemoved)
{
    EXPECT_TRUE(QDir(QFileInfo(path).path()).removeRecursively());
    logInfo("after");
    EXPECT_TRUE(content(path).endsWith(" : after\n"));
}

TEST_F(ApplicationLogFile, IsMadeAnewWhereItWasPutAside)
{
    EXPECT_TRUE(QFile::rename(path, path + ".1"));
    logInfo("after");
    EXPECT_TRUE(content(path).endsWith(" : after\n"));
    EXPECT_FALSE(content(path + ".1").contains("after"));
    EXPECT_TRUE(content(path + ".1").endsWith("=== End logging ===\r\n"));
}

TEST_F(ApplicationLogFile, IsMadeAnewToTellWhetherItCanBe)
{
    EXPECT_TRUE(QFile::remove(path));
    EXPECT_TRUE(ApplicationLog::isWritable());
}

TEST_F(ApplicationLogFile, StaysOpenWhileItIsInPlace)
{
    logInfo("after");
    EXPECT_FALSE(content(path).endsWith("=== End logging ===\r\n"));
    EXPECT_EQ(content(path).indexOf("=== Start"), content(path).lastIndexOf("=== Start"));
}

TEST_F(ApplicationLogFile, TakesLinesAgainWhenTheDiskIsNoLongerFull)
{
    {
        const FullDisk disk;
        logInfo("meanwhile");
    }
    logInfo("after");
    EXPECT_TRUE(content(path).endsWith(" : after\n"));
}

TEST_F(ApplicationLogFile, IsNotWaitedForWhereAPipeHasItsName)
{
    QFile::remove(path);
    EXPECT_EQ(0, mkfifo(QFile::encodeName(path).constData(), 0600));
    EXPECT_EQ(ForkedCheck::passed, ForkedCheck::statusOf([] {
                  logInfo("lost");
                  return ForkedCheck::passed;
              }));
}

} // namespace
