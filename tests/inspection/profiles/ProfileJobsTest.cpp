#include "inspection/profiles/ProfileReadingJob.h"
#include "inspection/profiles/ProfileWritingJob.h"
#include "tests/inspection/profiles/ProfileFixture.h"

namespace {

constexpr int largest = 16 * 1024; // bytes; a file beyond that is large

ProfileChange narrowChange(const char* section, const char* key, const char* value)
{
    return {ProfileFamily::Narrow, QLatin1String(section), QLatin1String(key),
            QLatin1String(value)};
}

ProfileChange wideChange(const char* section, const char* key, const char* value)
{
    return {ProfileFamily::Wide, QLatin1String(section), QLatin1String(key), QLatin1String(value)};
}

// How many steps a job takes, or fewer where it is to stop before.
int run(Job& job, int most = 1000)
{
    int steps = 0;
    while (steps < most && job.step())
        ++steps;
    return steps;
}

class ProfileReadingJobTest : public testing::Test
{
protected:
    ProfileReadingJob::Receiver receiver()
    {
        return {[this](ProfileDocument document) {
                    m_found << QStringLiteral("document of %1 lines").arg(document.lines().size());
                },
                [this](const ProfileReading& reading) {
                    m_found << reading.section + '.' + reading.key + ": " +
                                   reading.wide.value_or("not found") + '|' + reading.narrow;
                }};
    }

    ProfileFixture m_file;
    QStringList m_found;
};

TEST_F(ProfileReadingJobTest, TellsOfTheDocumentAndThenOfEachNameInTheOrderOfTheFile)
{
    m_file.write("[Net]\nHost=one\nQuery=a=b\nHost=two\n[General]\nSpeed=1\n");
    ProfileReadingJob job(m_file.path(), receiver());
    run(job);
    EXPECT_EQ(m_found, QStringList({"document of 6 lines", "Net.Query: a=b|", "Net.Host: two|two",
                                    ".Speed: 1|", "General.Speed: not found|1"}));
}

TEST_F(ProfileReadingJobTest, AsksForNamesThatQSettingsKeepsButDoesNotFind)
{
    m_file.write("[]\nk=v\n");
    ProfileReadingJob job(m_file.path(), receiver());
    run(job);
    EXPECT_EQ(m_found, QStringList({"document of 2 lines", ".k: not found|v"}));
}

TEST_F(ProfileReadingJobTest, HasNoNamesToAskForInAMissingFile)
{
    ProfileReadingJob job(m_file.path(), receiver());
    run(job);
    EXPECT_TRUE(job.isLoaded());
    EXPECT_EQ(m_found, QStringList({"document of 0 lines"}));
}

TEST_F(ProfileReadingJobTest, CountsTheNamesOnceTheFileIsRead)
{
    m_file.write("[S]\na=1\nb=2\n");
    ProfileReadingJob job(m_file.path(), receiver());
    EXPECT_EQ(job.progress(), QString());
    EXPECT_FALSE(job.isLoaded());
    run(job);
    EXPECT_EQ(job.progress(), QStringLiteral("2 values"));
}

TEST_F(ProfileReadingJobTest, ExpectsLongStepsUntilALargeFileIsInMemory)
{
    m_file.write("[S]\na=1\nb=2\n" + QByteArray(largest, '\n'));
    ProfileReadingJob job(m_file.path(), receiver());
    while (m_found.size() < 2) {
        EXPECT_TRUE(job.isNextStepLong() || job.isLoaded());
        ASSERT_TRUE(job.step());
    }
    EXPECT_FALSE(job.isNextStepLong());
}

TEST_F(ProfileReadingJobTest, ExpectsNoLongStepsOfASmallFile)
{
    m_file.write("[S]\na=1\n");
    const ProfileReadingJob job(m_file.path(), receiver());
    EXPECT_FALSE(job.isNextStepLong());
}

class ProfileWritingJobTest : public testing::Test
{
protected:
    ProfileFixture m_file;
};

TEST_F(ProfileWritingJobTest, WritesAndReadsBackThroughEitherFamily)
{
    for (const ProfileChange& change : {narrowChange("S", "a", "1"), wideChange("S", "b", "2")}) {
        ProfileWritingJob job(m_file.path(), change);
        run(job);
        EXPECT_TRUE(job.isWritten());
        EXPECT_TRUE(job.isReadBack());
    }
    EXPECT_EQ(m_file.bytes(), "[S]\na=1\nb=2\n");
}

TEST_F(ProfileWritingJobTest, TellsOfAValueThatTheFamilyDoesNotReadBack)
{
    ProfileWritingJob job(m_file.path(), narrowChange("S", "a", "1=2"));
    run(job);
    EXPECT_TRUE(job.isWritten());
    EXPECT_FALSE(job.isReadBack());
}

TEST_F(ProfileWritingJobTest, HasWrittenNothingInItsFirstSteps)
{
    m_file.write("[S]\na=1\n");
    ProfileWritingJob job(m_file.path(), wideChange("S", "a", "2"));
    run(job, 2);
    EXPECT_FALSE(job.isWritten());
    EXPECT_EQ(m_file.bytes(), "[S]\na=1\n");
}

} // namespace
