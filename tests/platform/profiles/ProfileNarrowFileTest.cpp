#include "tests/platform/profiles/ProfileManagerTest.h"

#include <csignal>
#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Gives up the rights of an administrator for as long as it lives.
class Unprivileged
{
public:
    Unprivileged() : m_former(geteuid()) { EXPECT_TRUE(m_former != 0 || seteuid(nobody) == 0); }
    ~Unprivileged() { EXPECT_EQ(0, seteuid(m_former)); }

    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;

private:
    static constexpr uid_t nobody = 65534;

    uid_t m_former;
};

class ProfileNarrowFile : public ProfileManagerTest
{
protected:
    static struct stat statusOf(const QByteArray& file)
    {
        struct stat result
        {
        };
        EXPECT_EQ(0, lstat(file.constData(), &result));
        return result;
    }
    struct stat status() const { return statusOf(narrow); }

    void setStamp(time_t seconds, long nanoseconds)
    {
        const timespec times[] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
        EXPECT_EQ(0, utimensat(AT_FDCWD, narrow.constData(), times, 0));
    }

    static qint64 milliseconds(const timespec& time)
    {
        return time.tv_sec * 1000LL + time.tv_nsec / 1000000;
    }

    // Leaves the stamp of the last rewrite at this many seconds after the present, or so.
    void leaveLatestStampAhead(time_t seconds)
    {
        // One that lies far ahead is not followed by the next rewrite, whatever was given before.
        for (const time_t ahead : {time_t(1000000), seconds}) {
            write("[S]\nk=v\n");
            setStamp(time(nullptr) + ahead, 0);
            EXPECT_EQ(1, writeNarrow("S", "k", "w"));
        }
    }
};

TEST_F(ProfileNarrowFile, IsCreatedWhereThereIsNone)
{
    const mode_t former = umask(027);
    EXPECT_EQ(1, writeNarrow("S", "k", "v"));
    umask(former);
    EXPECT_EQ("[S]\nk=v\n", content());
    EXPECT_EQ(0640U, status().st_mode & 07777U);
}

TEST_F(ProfileNarrowFile, KeepsItsInodeAndPermissions)
{
    write("[S]\nk=v\n");
    EXPECT_EQ(0, chmod(narrow.constData(), 0604));
    const struct stat before = status();
    EXPECT_EQ(1, writeNarrow("S", "k", "longer than before"));
    EXPECT_EQ(1, writeNarrow("S", "k", "x"));
    EXPECT_EQ(before.st_ino, status().st_ino);
    EXPECT_EQ(before.st_mode, status().st_mode);
}

TEST_F(ProfileNarrowFile, StaysBehindALink)
{
    const QString target = folder.filePath("target.ini");
    QFile file(target);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_EQ(0, symlink("target.ini", narrow.constData()));
    EXPECT_EQ(1, writeNarrow("S", "k", "v"));
    EXPECT_TRUE(S_ISLNK(status().st_mode));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ("[S]\nk=v\n", file.readAll());
}

TEST_F(ProfileNarrowFile, IsOpenedOnceByAWrite)
{
    write("[S]\nk=v\n");
    const int watcher = inotify_init1(IN_NONBLOCK);
    ASSERT_GE(watcher, 0);
    ASSERT_GE(inotify_add_watch(watcher, narrow.constData(), IN_OPEN), 0);
    EXPECT_EQ(1, writeNarrow("S", "k", "w"));
    alignas(inotify_event) char events[4096];
    EXPECT_EQ(static_cast<ssize_t>(sizeof(inotify_event)), ::read(watcher, events, sizeof events));
    EXPECT_EQ(-1, ::read(watcher, events, sizeof events));
    close(watcher);
}

TEST_F(ProfileNarrowFile, ThatCannotBeOpenedForWritingFailsTheWrite)
{
    const QByteArray files[] = {"", folder.path().toUtf8(), "/dev/null/x",
                                folder.filePath("absent/profile.ini").toUtf8()};
    for (const QByteArray& file : files)
        EXPECT_EQ(0, manager.WritePrivateProfileStringA("S", "k", "v", file)) << file.constData();
}

TEST_F(ProfileNarrowFile, ThatDoesNotTakeTheTextDoesNotFailTheWrite)
{
    EXPECT_EQ(1, manager.WritePrivateProfileStringA("S", "k", "v", "/dev/null"));
    signal(SIGXFSZ, SIG_IGN);
    rlimit former{};
    EXPECT_EQ(0, getrlimit(RLIMIT_FSIZE, &former));
    const rlimit four{4, former.rlim_max};
    EXPECT_EQ(0, setrlimit(RLIMIT_FSIZE, &four));
    EXPECT_EQ(1, writeNarrow("S", "k", "v"));
    EXPECT_EQ(0, setrlimit(RLIMIT_FSIZE, &former));
    EXPECT_EQ("[S]\n", content());
}

TEST_F(ProfileNarrowFile, ThatIsADeviceKeepsItsStamp)
{
    const struct stat before = statusOf("/dev/null");
    EXPECT_EQ(1, manager.WritePrivateProfileStringA("S", "k", "v", "/dev/null"));
    const struct stat after = statusOf("/dev/null");
    EXPECT_EQ(before.st_mtim.tv_sec, after.st_mtim.tv_sec);
    EXPECT_EQ(before.st_mtim.tv_nsec, after.st_mtim.tv_nsec);
}

TEST_F(ProfileNarrowFile, MovesOnFromAStampThatLiesAhead)
{
    write("[S]\nk=v\n");
    setStamp(4000000000, 999999999);
    EXPECT_EQ(1, writeNarrow("S", "k", "w"));
    EXPECT_EQ(4000000001000, milliseconds(status().st_mtim));
    EXPECT_EQ(1, writeNarrow("S", "k", "x"));
    EXPECT_EQ(4000000001001, milliseconds(status().st_mtim));
}

TEST_F(ProfileNarrowFile, HasTheTimeOfTheWriteWhenItsStampIsOld)
{
    write("[S]\nk=v\n");
    setStamp(1000000000, 0);
    const time_t now = time(nullptr);
    EXPECT_EQ(1, writeNarrow("S", "k", "w"));
    EXPECT_LE(now, status().st_mtim.tv_sec + 1);
}

TEST_F(ProfileNarrowFile, FollowsAStampGivenToAnotherUnlessThatLiesAnHourAhead)
{
    const QByteArray other = folder.filePath("other.ini").toUtf8();
    const std::pair<time_t, bool> rows[] = {{3540, true}, {3660, false}};
    for (const auto& [ahead, followed] : rows) {
        QFile::remove(other);
        leaveLatestStampAhead(ahead);
        EXPECT_EQ(1, manager.WritePrivateProfileStringA("S", "k", "v", other));
        const qint64 expected = milliseconds(status().st_mtim) + 1;
        if (followed)
            EXPECT_EQ(expected, milliseconds(statusOf(other).st_mtim));
        else
            EXPECT_GT(time(nullptr) + 60, statusOf(other).st_mtim.tv_sec);
    }
}

// A file in a folder that everybody can reach; the test's own cannot be.
class ProfileSharedFile : public ProfileNarrowFile
{
protected:
    ProfileSharedFile()
    {
        EXPECT_EQ(0, chmod(shared.path().toUtf8(), 0755));
        QFile opened(file);
        EXPECT_TRUE(opened.open(QIODevice::WriteOnly));
        EXPECT_EQ(8, opened.write("[S]\nk=v\n"));
    }

    QTemporaryDir shared{QStringLiteral("/tmp/quayside-XXXXXX")};
    const QByteArray file = shared.filePath("profile.ini").toUtf8();
};

TEST_F(ProfileSharedFile, ThatMayOnlyBeReadFailsTheWriteAndStays)
{
    EXPECT_EQ(0, chmod(file.constData(), 0444));
    const struct stat before = statusOf(file);
    const Unprivileged user;
    EXPECT_EQ(0, manager.WritePrivateProfileStringA("S", "k", "w", file));
    EXPECT_EQ(before.st_mtim.tv_nsec, statusOf(file).st_mtim.tv_nsec);
    char buffer[] = "xxx";
    EXPECT_EQ(1U, manager.GetPrivateProfileStringA("S", "k", nullptr, buffer, 4, file));
    EXPECT_STREQ("v", buffer);
}

// A file of somebody else's, whose stamp only the clock moves.
class ProfileForeignFile : public ProfileSharedFile
{
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "only an administrator can own a file as somebody else";
        EXPECT_EQ(0, chmod(file.constData(), 0666));
    }

    void expectToMoveOn()
    {
        const Unprivileged user;
        for (int i = 0; i < 20; ++i) {
            const qint64 before = milliseconds(statusOf(file).st_mtim);
            EXPECT_EQ(1, manager.WritePrivateProfileStringA("S", "k", "w", file));
            EXPECT_LT(before, milliseconds(statusOf(file).st_mtim));
        }
    }
};

TEST_F(ProfileForeignFile, MovesOnWithTheClock)
{
    leaveLatestStampAhead(0);
    expectToMoveOn();
}

TEST_F(ProfileForeignFile, MovesOnWithTheClockThoughTheLatestStampLiesAhead)
{
    leaveLatestStampAhead(1000);
    expectToMoveOn();
}

TEST_F(ProfileForeignFile, WaitsForAStampThatTheClockSoonPasses)
{
    leaveLatestStampAhead(0);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(1, writeNarrow("S", "k", "v"));
    {
        const Unprivileged user;
        EXPECT_EQ(1, manager.WritePrivateProfileStringA("S", "k", "w", file));
    }
    EXPECT_LT(milliseconds(status().st_mtim), milliseconds(statusOf(file).st_mtim));
}

} // namespace
