#include "tests/platform/profiles/ProfileManagerTest.h"

#include <QDir>
#include <QFileInfo>

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Holds a file as file servers do: who opens it waits until it is given back.
class LeaseHolder
{
public:
    explicit LeaseHolder(const QByteArray& file)
    {
        int ready[2] = {};
        EXPECT_EQ(0, pipe(ready));
        m_process = fork();
        if (m_process == 0)
            hold(file, ready[1]);
        close(ready[1]);
        char answer = 0;
        m_holds = ::read(ready[0], &answer, 1) == 1 && answer == 'y';
        close(ready[0]);
    }
    ~LeaseHolder()
    {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }

    bool holds() const { return m_holds; }

private:
    [[noreturn]] static void hold(const QByteArray& file, int ready)
    {
        sigset_t asked;
        sigemptyset(&asked);
        sigaddset(&asked, SIGIO);
        sigprocmask(SIG_BLOCK, &asked, nullptr);
        const int descriptor = ::open(file.constData(), O_RDWR);
        const bool isHeld = fcntl(descriptor, F_SETLEASE, F_WRLCK) == 0;
        if (::write(ready, isHeld ? "y" : "n", 1) != 1)
            _exit(1);
        int signal = 0;
        sigwait(&asked, &signal);
        fcntl(descriptor, F_SETLEASE, F_UNLCK);
        _exit(0);
    }

    pid_t m_process = -1;
    bool m_holds = false;
};

class ProfileOpeningTest : public ProfileManagerTest
{
};

TEST_F(ProfileOpeningTest, WaitsForAFileThatIsHeldForAMoment)
{
    write("[S]\nk=v\n");
    const LeaseHolder holder(narrow);
    if (!holder.holds())
        GTEST_SKIP() << "the file system has no leases";
    char buffer[8] = {};
    EXPECT_EQ(1u, manager.GetPrivateProfileStringA("S", "k", "", buffer, sizeof buffer, narrow));
    EXPECT_STREQ("v", buffer);
}

TEST_F(ProfileOpeningTest, TakesTheNamesThatQtAloneKnows)
{
    write("[S]\nk=v\n");
    QDir::setSearchPaths("profile", {QFileInfo(path).absolutePath()});
    const QByteArray name = "profile:" + QFileInfo(path).fileName().toUtf8();
    char buffer[8] = {};
    EXPECT_EQ(1u, manager.GetPrivateProfileStringA("S", "k", "", buffer, sizeof buffer, name));
    QDir::setSearchPaths("profile", {});
}

TEST_F(ProfileOpeningTest, CountsAWideWriteToADeviceAsDone)
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_EQ(0, grantpt(terminal) + unlockpt(terminal));
    const std::wstring device = QString::fromLocal8Bit(ptsname(terminal)).toStdWString();
    EXPECT_EQ(1, manager.WritePrivateProfileStringW(L"S", L"k", L"v", device.c_str()));
    struct stat status = {};
    EXPECT_EQ(0, stat(ptsname(terminal), &status));
    EXPECT_TRUE(S_ISCHR(status.st_mode));
    close(terminal);
}

} // namespace
