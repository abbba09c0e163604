#include "inspection/files/FileSearchJob.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <utility>

namespace {

class FileSearchJobTest : public testing::Test
{
protected:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    void makeFile(const QByteArray& name, const char* contents = "12345") const
    {
        const QByteArray path = QFile::encodeName(m_folder.path()) + '/' + name;
        std::ofstream made(path.constData());
        made << contents;
        ASSERT_TRUE(made.good());
    }

    void makeFiles(int count) const
    {
        for (int i = 0; i < count; ++i)
            makeFile(QByteArray::number(i));
    }

    FileSearchJob::Receiver receiver()
    {
        return [this](std::vector<FoundEntry> entries) {
            EXPECT_FALSE(entries.empty());
            ++m_batches;
            std::move(entries.begin(), entries.end(), std::back_inserter(m_found));
        };
    }

    static void run(Job& job)
    {
        while (job.step()) {
        }
    }

    QTemporaryDir m_folder;
    std::vector<FoundEntry> m_found;
    int m_batches = 0;
};

TEST_F(FileSearchJobTest, HandsOverWhatTheServiceReports)
{
    makeFile("a.txt");
    makeFile("b.txt");
    makeFile("c.dat");
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("d.txt"));
    FileSearchJob job(path("*.txt"), receiver());
    run(job);
    ASSERT_EQ(m_found.size(), 3U);
    EXPECT_EQ(m_found[0].name, "a.txt");
    EXPECT_EQ(m_found[0].attributes, FILE_ATTRIBUTE_NORMAL);
    ASSERT_TRUE(m_found[0].details);
    EXPECT_EQ(m_found[0].details->size, 5U);
    EXPECT_EQ(m_found[1].name, "b.txt");
    EXPECT_FALSE(m_found[1].details);
    EXPECT_EQ(m_found[2].name, "d.txt");
    EXPECT_EQ(m_found[2].attributes, FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_EQ(job.found(), 3);
    EXPECT_EQ(job.remark(), QString());
}

TEST_F(FileSearchJobTest, FindsNothingWithoutCallingTheReceiver)
{
    FileSearchJob job(path("none*"), receiver());
    run(job);
    EXPECT_EQ(m_batches, 0);
    EXPECT_EQ(job.found(), 0);
}

// The last batch may be as large as one can be: then only the step after it finds the end.
TEST_F(FileSearchJobTest, HandsOverSomeEntriesAtATime)
{
    makeFiles(128);
    FileSearchJob job(path("*"), receiver());
    run(job);
    EXPECT_EQ(m_found.size(), 128U);
    EXPECT_EQ(m_batches, 2);
    EXPECT_EQ(job.found(), 128);
}

TEST_F(FileSearchJobTest, TellsHowManyEntriesItHasFound)
{
    makeFiles(1200);
    FileSearchJob job(path("*"), receiver());
    EXPECT_EQ(job.progress(), "0 found");
    while (m_found.empty())
        ASSERT_TRUE(job.step());
    EXPECT_EQ(job.progress(), "64 found");
    run(job);
    EXPECT_EQ(job.progress(), "1,200 found");
}

TEST_F(FileSearchJobTest, AnnouncesTheListingOfALargeDirectoryAndNothingElse)
{
    makeFiles(5000);
    FileSearchJob job(path("*"), receiver());
    int announced = 0;
    bool more = true;
    while (more) {
        const bool isLong = job.isNextStepLong();
        announced += isLong ? 1 : 0;
        const bool isFirst = m_found.empty();
        more = job.step();
        EXPECT_EQ(isLong, isFirst && !m_found.empty());
    }
    EXPECT_EQ(announced, 1);
}

TEST_F(FileSearchJobTest, AnnouncesNoListingOfASmallDirectory)
{
    makeFiles(10);
    FileSearchJob job(path("*"), receiver());
    do {
        EXPECT_FALSE(job.isNextStepLong());
    } while (job.step());
    EXPECT_EQ(job.found(), 10);
}

TEST_F(FileSearchJobTest, TellsWhyADirectoryCannotBeOpened)
{
    makeFile("file");
    FileSearchJob job(path("file/*"), receiver());
    run(job);
    EXPECT_EQ(job.remark(), "The folder cannot be opened: " + qt_error_string(ENOTDIR) + '.');
}

TEST_F(FileSearchJobTest, CountsTheNamesThatTheServiceLeavesOut)
{
    makeFile("good");
    makeFile("bad\xFF");
    FileSearchJob job(path("*"), receiver());
    run(job);
    EXPECT_EQ(job.found(), 1);
    EXPECT_EQ(job.remark(), "Names in the folder that are no text in the locale's encoding, and "
                            "that the service leaves out: 1.");
    std::remove((QFile::encodeName(m_folder.path()) + "/bad\xFF").constData());
}

TEST(FileSearchJobFault, IsToldOfPatternsThatNeverFindAnything)
{
    EXPECT_EQ(FileSearchJob::fault(""), "Type a pattern first, such as /etc/*.conf.");
    EXPECT_TRUE(FileSearchJob::fault("*.txt").endsWith("such as ./*.txt."));
    EXPECT_EQ(FileSearchJob::fault("./*.txt"), QString());
}

} // namespace
