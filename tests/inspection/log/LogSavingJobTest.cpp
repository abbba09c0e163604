#include "inspection/log/LogSavingJob.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class LogSavingJobTest : public testing::Test
{
protected:
    static QString line(int number) { return QStringLiteral("Zeile %1 \u00E4").arg(number); }

    QByteArray saved() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("saved.log");
};

TEST_F(LogSavingJobTest, WritesTheLinesInUtf8)
{
    LogSavingJob job(m_path, 2, line);
    EXPECT_TRUE(job.step());
    EXPECT_TRUE(job.step());
    EXPECT_FALSE(job.step());
    EXPECT_EQ(saved(), "Zeile 0 \xC3\xA4\nZeile 1 \xC3\xA4\n");
    EXPECT_EQ(job.written(), 2);
    EXPECT_EQ(job.error(), QString());
}

TEST_F(LogSavingJobTest, MakesAnEmptyFileOfNoLines)
{
    LogSavingJob job(m_path, 0, line);
    EXPECT_FALSE(job.step());
    EXPECT_EQ(saved(), "");
    EXPECT_EQ(job.error(), QString());
}

TEST_F(LogSavingJobTest, LeavesTheFileAloneWhenItIsDropped)
{
    QFile older(m_path);
    ASSERT_TRUE(older.open(QIODevice::WriteOnly));
    older.write("older\n");
    older.close();
    {
        LogSavingJob job(m_path, 2, line);
        EXPECT_TRUE(job.step());
        EXPECT_TRUE(job.step());
    }
    EXPECT_EQ(saved(), "older\n");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList("saved.log"));
}

TEST_F(LogSavingJobTest, TellsWhyTheFileCannotBeWritten)
{
    LogSavingJob job(m_folder.filePath("missing/saved.log"), 2, line);
    EXPECT_FALSE(job.step());
    EXPECT_EQ(job.written(), 0);
    EXPECT_FALSE(job.error().isEmpty());
}

TEST_F(LogSavingJobTest, TellsTheNumberOfLinesWritten)
{
    LogSavingJob job(m_path, 1234, line);
    EXPECT_EQ(job.progress(), "0");
    while (job.step()) {
    }
    EXPECT_EQ(job.progress(), "1,234");
}

TEST_F(LogSavingJobTest, AnnouncesOnlyTheStepThatReplacesTheFileByManyLines)
{
    for (const int lines : {0, 999, 1000}) {
        LogSavingJob job(m_path, lines, line);
        for (int i = 0; i < lines; ++i) {
            EXPECT_FALSE(job.isNextStepLong());
            EXPECT_TRUE(job.step());
        }
        EXPECT_EQ(job.isNextStepLong(), lines == 1000);
        EXPECT_FALSE(job.step());
    }
}

} // namespace
