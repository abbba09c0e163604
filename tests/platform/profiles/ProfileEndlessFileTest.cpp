#include "tests/platform/profiles/ProfileManagerTest.h"
#include "tests/support/ForkedCheck.h"
#include "tests/support/WaitFor.h"

#include <QFileInfo>

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isMemoryOwn = false; // most of it is the sanitizer's
#else
constexpr bool isMemoryOwn = !QUAYSIDE_CROSS_BUILT; // an emulator's is not either
#endif

using ForkedCheck::differed;
using ForkedCheck::passed;
using ForkedCheck::patience;

class ProfileEndlessFile : public ProfileManagerTest
{
protected:
    static int inChild(const std::function<bool()>& check)
    {
        return ForkedCheck::statusOf([&] { return check() ? passed : differed; });
    }

    std::string narrowOf(const QByteArray& file)
    {
        char buffer[] = "untouched"; // what is read is shorter, and filled up with NULs
        const unsigned int length =
            manager.GetPrivateProfileStringA("S", "k", "d", buffer, sizeof buffer, file);
        return std::string(buffer) + std::to_string(length);
    }

    std::wstring wideOf(const QByteArray& file)
    {
        wchar_t buffer[64] = {};
        manager.GetPrivateProfileStringW(L"S", L"k", L"d", buffer, 64, wideName(file).c_str());
        return buffer;
    }

    bool hasEmptySection(const QByteArray& file)
    {
        wchar_t buffer[64] = L"xx";
        return manager.GetPrivateProfileSectionW(L"S", buffer, 64, wideName(file).c_str()) == 1 &&
               buffer[0] == L'\0' && buffer[1] == L'x';
    }

    static std::wstring wideName(const QByteArray& file)
    {
        return QString::fromUtf8(file).toStdWString();
    }

    void makePipe() const { EXPECT_EQ(0, mkfifo(narrow.constData(), 0600)); }

    void writeSparse(const QByteArray& beginning, off_t size)
    {
        write(beginning);
        EXPECT_EQ(0, truncate(narrow.constData(), size));
    }

    QByteArray beginning(qint64 size) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.read(size) : QByteArray();
    }
};

constexpr off_t beyondText = off_t{1100} * 1024 * 1024;
constexpr off_t beyondSettings = off_t{2200} * 1024 * 1024;

TEST_F(ProfileEndlessFile, IsEmptyForNarrowReads)
{
    makePipe();
    for (const QByteArray& file : {QByteArray("/dev/zero"), narrow})
        EXPECT_EQ(passed, inChild([&] { return narrowOf(file) == "0"; })) << file.constData();
}

TEST_F(ProfileEndlessFile, HasNothingButDefaultsForWideReads)
{
    makePipe();
    for (const QByteArray& file : {QByteArray("/dev/zero"), narrow}) {
        EXPECT_EQ(passed, inChild([&] { return wideOf(file) == L"d"; })) << file.constData();
        EXPECT_EQ(passed, inChild([&] {
                      return manager.GetPrivateProfileIntW(L"S", L"k", 7, wideName(file).c_str()) ==
                             7;
                  }))
            << file.constData();
        EXPECT_EQ(passed, inChild([&] { return hasEmptySection(file); })) << file.constData();
    }
}

TEST_F(ProfileEndlessFile, FailsNarrowWrites)
{
    makePipe();
    for (const QByteArray& file : {QByteArray("/dev/zero"), narrow})
        EXPECT_EQ(passed, inChild([&] {
                      return manager.WritePrivateProfileStringA("S", "k", "v", file) == 0;
                  }))
            << file.constData();
}

TEST_F(ProfileEndlessFile, FailsWideWritesAndStays)
{
    makePipe();
    EXPECT_EQ(passed, inChild([this] { return writeWide(L"S", L"k", L"v") == 0; }));
    struct stat status = {};
    EXPECT_EQ(0, lstat(narrow.constData(), &status));
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

// What the system says that a process does: "S" while it waits, "R" from the moment in which that
// for which it has waited comes about.
char stateOf(pid_t process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray line = file.readAll();
    return line.at(line.lastIndexOf(')') + 2);
}

// Whoever waits at the other end of a pipe goes on waiting.
TEST_F(ProfileEndlessFile, ThatIsAPipeIsNotOpened)
{
    makePipe();
    int ready[2] = {};
    ASSERT_EQ(0, ::pipe(ready));
    const pid_t child = fork();
    if (child == 0) {
        alarm(patience);
        const bool isReady = ::write(ready[1], "r", 1) == 1;
        const int end = ::open(narrow.constData(), O_WRONLY); // waits for a reader
        _exit(isReady && end >= 0 ? differed : passed);
    }
    char byte = 0;
    ASSERT_EQ(1, ::read(ready[0], &byte, 1));
    ASSERT_TRUE(waitFor([child] { return stateOf(child) == 'S'; }));
    EXPECT_EQ("0", narrowOf(narrow));
    EXPECT_EQ('S', stateOf(child));
    EXPECT_EQ(0, kill(child, SIGKILL));
    int status = 0;
    EXPECT_EQ(child, waitpid(child, &status, 0));
    EXPECT_TRUE(WIFSIGNALED(status));
    close(ready[0]);
    close(ready[1]);
}

TEST_F(ProfileEndlessFile, OfMoreThanATextHoldsIsReadByTheNarrowFamily)
{
    // A sanitizer makes slow what it does not let run out of memory anyway.
    writeSparse("[S]\nk=v\n", isMemoryOwn ? beyondText : beyondText / 10);
    EXPECT_EQ(passed, inChild([this] { return narrowOf(narrow) == "v1"; }));
}

TEST_F(ProfileEndlessFile, OfMoreThanATextHoldsFailsNarrowWritesAndStays)
{
    writeSparse("[S]\nk=v\n", beyondText);
    EXPECT_EQ(passed, inChild([this] { return writeNarrow("S", "k", "w") == 0; }));
    EXPECT_EQ("[S]\nk=v\n", beginning(8));
    EXPECT_EQ(beyondText, QFileInfo(path).size());
}

TEST_F(ProfileEndlessFile, OfMoreThanSettingsHoldIsLeftByTheWideFamily)
{
    writeSparse("[S]\nk=v\n", beyondSettings);
    EXPECT_EQ(passed, inChild([this] { return wideOf(narrow) == L"d"; }));
    EXPECT_EQ(passed, inChild([this] { return writeWide(L"S", L"k", L"w") == 0; }));
    EXPECT_EQ(beyondSettings, QFileInfo(path).size());
}

TEST_F(ProfileEndlessFile, BeyondTheMemoryEndsNoCallByAnException)
{
    if (!isMemoryOwn)
        GTEST_SKIP() << "sanitizers end the program where memory is refused";
    constexpr int bytes = 64 * 1024 * 1024;
    write("[S]\nk=" + QByteArray(bytes, 'v') + '\n');
    const auto withLittleMemory = [this](const std::function<bool()>& check) {
        return inChild([&] {
            long pages = 0;
            std::FILE* statm = std::fopen("/proc/self/statm", "r");
            const bool isKnown = statm && std::fscanf(statm, "%ld", &pages) == 1;
            const rlimit limit{static_cast<rlim_t>(pages) * 4096 + bytes, RLIM_INFINITY};
            return isKnown && setrlimit(RLIMIT_AS, &limit) == 0 && check();
        });
    };
    EXPECT_EQ(passed, withLittleMemory([this] { return narrowOf(narrow) == "0"; }));
    EXPECT_EQ(passed, withLittleMemory([this] { return wideOf(narrow) == L"d"; }));
    EXPECT_EQ(passed, withLittleMemory([this] { return hasEmptySection(narrow); }));
    EXPECT_EQ(passed, withLittleMemory([this] { return writeNarrow("S", "j", "v") == 0; }));
    EXPECT_EQ(passed, withLittleMemory([this] { return writeWide(L"S", L"j", L"v") == 0; }));
    EXPECT_EQ(bytes + 7, QFileInfo(path).size());
}

// Bytes that a call needs beside what the process has anyway, for each byte of the file.
class ProfileMemory : public ProfileEndlessFile
{
protected:
    static constexpr int lines = 1000000;

    void SetUp() override
    {
        if (!isMemoryOwn)
            GTEST_SKIP() << "sanitizers need memory of their own";
        QByteArray content;
        for (int line = 0; line < lines; ++line)
            content += (line % 100 == 0 ? "[Section " + QByteArray::number(line) + "]\n" : "") +
                       "Name" + QByteArray::number(line) + "=a value of some length, " +
                       QByteArray::number(line * 7) + '\n';
        write(content);
    }

    static qint64 peak()
    {
        rusage usage{};
        EXPECT_EQ(0, getrusage(RUSAGE_SELF, &usage));
        return qint64{usage.ru_maxrss} * 1024;
    }

    // The test itself has had a peak: only a process of its own shows that of a call.
    int timesTheFile(qint64 tenths, const std::function<bool()>& call) const
    {
        const qint64 size = QFileInfo(path).size();
        return inChild([&] {
            const qint64 before = peak();
            return call() && (peak() - before) * 10 < size * tenths;
        });
    }
};

TEST_F(ProfileMemory, OfANarrowReadIsLessThanHalfOfTheFile)
{
    EXPECT_EQ(passed, timesTheFile(5, [this] { return narrowOf(narrow) == "0"; }));
}

TEST_F(ProfileMemory, OfANarrowWriteIsLessThanThreeTimesTheFile)
{
    EXPECT_EQ(passed, timesTheFile(30, [this] { return writeNarrow("S", "k", "v") == 1; }));
}

} // namespace
