#include "inspection/profiles/ProfileReadingJob.h"
#include "inspection/profiles/ProfileWritingJob.h"
#include "tests/inspection/profiles/ProfileFixture.h"

#include <cstdio>
#include <functional>
#include <memory>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

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

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isMemoryOwn = false; // most of it is the sanitizer's
#else
constexpr bool isMemoryOwn = !QUAYSIDE_CROSS_BUILT; // an emulator's is not either
#endif

// In a child process, which has few bytes of memory more than it has now: 0 when `check` is true.
int withLittleMemory(rlim_t bytes, const std::function<bool()>& check)
{
    const pid_t child = fork();
    if (child == 0) {
        long pages = 0;
        std::FILE* statm = std::fopen("/proc/self/statm", "r");
        const bool isKnown = statm && std::fscanf(statm, "%ld", &pages) == 1;
        const rlimit limit{static_cast<rlim_t>(pages) * 4096 + bytes, RLIM_INFINITY};
        _exit(isKnown && setrlimit(RLIMIT_AS, &limit) == 0 && check() ? 0 : 1);
    }
    int status = 0;
    EXPECT_EQ(child, waitpid(child, &status, 0));
    return status;
}

class ProfileReadingJobTest : public testing::Test
{
protected:
    ProfileReadingJob::Receiver receiver()
    {
        return {
            [this](const std::shared_ptr<const ProfileDocument>& document, int wanted) {
                m_wanted = wanted;
                m_found << QStringLiteral("document of %1 lines").arg(document->lines().count());
            },
            [this](int name, const ProfileReading& reading) {
                m_found << QString::number(name) + ' ' + reading.section + '.' + reading.key +
                               ": " + reading.wide.value_or("not found") + '|' + reading.narrow;
            }};
    }

    ProfileFixture m_file;
    QStringList m_found;
    int m_wanted = -1;
};

TEST_F(ProfileReadingJobTest, TellsOfTheDocumentAndThenOfEachNameInTheOrderOfTheFile)
{
    m_file.write("[Net]\nHost=one\nQuery=a=b\nHost=two\n[General]\nSpeed=1\n");
    ProfileReadingJob job(m_file.path(), receiver());
    run(job);
    EXPECT_EQ(m_found,
              QStringList({"document of 6 lines", "0 Net.Query: a=b|", "1 Net.Host: two|two",
                           "2 .Speed: 1|", "3 General.Speed: not found|1"}));
}

TEST_F(ProfileReadingJobTest, AsksForNamesThatQSettingsKeepsButDoesNotFind)
{
    m_file.write("[]\nk=v\n");
    ProfileReadingJob job(m_file.path(), receiver());
    run(job);
    EXPECT_EQ(m_found, QStringList({"document of 2 lines", "0 .k: not found|v"}));
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
    EXPECT_EQ(job.progress(), QStringLiteral("Values: 2"));
}

TEST_F(ProfileReadingJobTest, FindsTheNameThatIsLookedFor)
{
    m_file.write("[Net]\nHost=one\nQuery=a=b\n");
    for (const auto& [key, expected] : {std::pair("Query", 1), std::pair("None", -1)}) {
        ProfileReadingJob job(m_file.path(), receiver());
        job.lookFor({QStringLiteral("Net"), QLatin1String(key)});
        run(job);
        EXPECT_EQ(m_wanted, expected) << key;
    }
}

TEST_F(ProfileReadingJobTest, AsksForAFewNamesOfALargeFile)
{
    m_file.write("[S]\na=1\n" + QByteArray(largest, '\n'));
    ProfileReadingJob job(m_file.path(), receiver());
    run(job);
    EXPECT_EQ(m_found.last(), QStringLiteral("0 S.a: 1|1"));
}

TEST_F(ProfileReadingJobTest, AsksForNothingWhereThatTakesLong)
{
    constexpr int names = 3000;
    QByteArray bytes = "[S]\n";
    for (int i = 0; i < names; ++i)
        bytes += "key" + QByteArray::number(i) + "=value\n";
    m_file.write(bytes);
    ProfileReadingJob job(m_file.path(), receiver());
    run(job);
    EXPECT_TRUE(job.isLoaded());
    EXPECT_EQ(m_found, QStringList(QStringLiteral("document of %1 lines").arg(names + 1)));
}

class ProfileAskingJobTest : public testing::Test
{
protected:
    void load(const QByteArray& bytes)
    {
        m_file.write(bytes);
        ProfileLoadingJob loading(m_file.path());
        while (loading.step())
            ;
        m_document = std::make_shared<const ProfileDocument>(std::move(loading.document()));
    }

    ProfileFixture m_file;
    std::shared_ptr<const ProfileDocument> m_document;
};

TEST_F(ProfileAskingJobTest, AsksForTheNamesThatItIsTold)
{
    load("[S]\na=1\nb=2\nc=3\n");
    std::vector<int> wanted = {0, 2};
    QStringList answers;
    ProfileAskingJob job(
        m_document,
        [&wanted] {
            const int next = wanted.empty() ? -1 : wanted.back();
            if (!wanted.empty())
                wanted.pop_back();
            return next;
        },
        [&answers](int name, const ProfileReading& reading) {
            answers << QString::number(name) + reading.key + reading.narrow;
        });
    run(job);
    EXPECT_EQ(answers, QStringList({"2c3", "0a1"}));
}

TEST_F(ProfileAskingJobTest, ExpectsALongStepUntilALargeFileIsInMemory)
{
    load("[S]\na=1\nb=2\n" + QByteArray(largest, '\n'));
    int name = 0;
    ProfileAskingJob job(
        m_document, [&name] { return name++; }, [](int, const ProfileReading&) {});
    EXPECT_TRUE(job.isNextStepLong());
    ASSERT_TRUE(job.step());
    EXPECT_FALSE(job.isNextStepLong());
}

TEST_F(ProfileAskingJobTest, ExpectsNoLongStepsOfASmallFile)
{
    load("[S]\na=1\n");
    const ProfileAskingJob job(
        m_document, [] { return 0; }, [](int, const ProfileReading&) {});
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

TEST(ProfileWritingJob, EndsByNoExceptionWhereTheMemoryIsRefused)
{
    if (!isMemoryOwn)
        GTEST_SKIP() << "sanitizers end the program where memory is refused";
    constexpr int bytes = 64 * 1024 * 1024;
    const ProfileFixture file;
    file.write("[S]\nk=" + QByteArray(bytes, 'v') + "\nl=1\n");
    ProfileChange deletion = narrowChange("S", "l", "");
    deletion.action = ProfileChange::Action::DeleteKey;
    EXPECT_EQ(0, withLittleMemory(bytes / 2, [&] {
                  ProfileWritingJob job(file.path(), deletion);
                  run(job);
                  return job.isTooLarge() && !job.isReadBack() && !job.step();
              }));
    EXPECT_EQ(QFileInfo(file.path()).size(), bytes + 11);
}

} // namespace
