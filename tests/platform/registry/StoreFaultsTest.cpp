#include "tests/platform/registry/RegistryFixture.h"
#include "tests/support/ForkedCheck.h"
#include "tests/support/FullDisk.h"

#include <QDir>
#include <QLockFile>

#include <array>
#include <csignal>
#include <functional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A store whose file cannot be written, or whose program ends. The services keep what they are told
// all the same: only the store knows that it could not save itself.
class StoreFaults : public RegistryFixture
{
protected:
    static constexpr uid_t nobody = 65534;

    // What a service is told by a store that lies there; true if it is kept until the end, the
    // store tells of the failure, and nothing else is said.
    bool failsToSave(const QString& path)
    {
        QSettings unsaved(path, QSettings::IniFormat);
        g_globalSettings = &unsaved;
        manager.emplace();
        const bool isSet = setDword(HKEY_CURRENT_USER, L"number", 42) == 0;
        unsaved.sync();
        const bool isKept = dword(HKEY_CURRENT_USER, L"number") == 42U;
        const bool isTold = unsaved.status() == QSettings::AccessError;
        g_globalSettings = &store;
        return isSet && isKept && isTold;
    }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(bytes.size(), file.write(bytes));
    }

    QByteArray content(const QString& name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    void beginProgram(const std::function<void()>& work)
    {
        ASSERT_EQ(0, pipe(m_ends.data()));
        m_program = fork();
        if (m_program == 0) {
            work();
            _exit(0);
        }
    }
    void tell() const { EXPECT_EQ(1, ::write(m_ends[1], "x", 1)); }
    void waitToBeTold() const
    {
        char byte = 0;
        EXPECT_EQ(1, ::read(m_ends[0], &byte, 1));
    }
    void endProgram()
    {
        EXPECT_EQ(0, kill(m_program, SIGKILL));
        EXPECT_EQ(m_program, waitpid(m_program, nullptr, 0));
        close(m_ends[0]);
        close(m_ends[1]);
    }

private:
    std::array<int, 2> m_ends{};
    pid_t m_program = 0;
};

TEST_F(StoreFaults, FileThatMayOnlyBeReadStaysAsItIs)
{
    write("own.ini", "[key]\nvalue=5$text\n");
    const QByteArray path = QFile::encodeName(folder.path());
    EXPECT_EQ(0, chmod(path.constData(), 0555));
    EXPECT_EQ(0, chmod((path + "/own.ini").constData(), 0444));
    EXPECT_EQ(ForkedCheck::passed, ForkedCheck::statusOf([this] {
                  // In its folder, as that of all tests is closed to others.
                  if (chdir(QFile::encodeName(folder.path()).constData()) != 0 ||
                      (geteuid() == 0 && seteuid(nobody) != 0))
                      return ForkedCheck::unavailable;
                  return failsToSave("own.ini") ? ForkedCheck::passed : ForkedCheck::differed;
              }));
    EXPECT_EQ(0, chmod(path.constData(), 0755));
    EXPECT_EQ("[key]\nvalue=5$text\n", content("own.ini"));
}

TEST_F(StoreFaults, FolderThatCannotBeMadeHasNoStore)
{
    write("file", "no folder");
    EXPECT_TRUE(failsToSave(folder.filePath("file/store.ini")));
    EXPECT_EQ("no folder", content("file"));
}

TEST_F(StoreFaults, FolderThatIsMissingIsMade)
{
    QSettings below(folder.filePath("a/b/store.ini"), QSettings::IniFormat);
    g_globalSettings = &below;
    manager.emplace();
    EXPECT_EQ(0U, setDword(HKEY_CURRENT_USER, L"number", 42));
    below.sync();
    g_globalSettings = &store;
    EXPECT_EQ("[number]\nnumber=1$42\n", content("a/b/store.ini"));
}

TEST_F(StoreFaults, FolderInThePlaceOfTheFileStays)
{
    EXPECT_TRUE(QDir(folder.path()).mkpath("store.ini/inside"));
    EXPECT_TRUE(failsToSave(folder.filePath("store.ini")));
    EXPECT_TRUE(QDir(folder.filePath("store.ini/inside")).exists());
}

TEST_F(StoreFaults, FullDiskLeavesTheFileAndIsPassed)
{
    EXPECT_EQ(0U, setDword(HKEY_CURRENT_USER, L"number", 1));
    const QByteArray before = fileOnDisk();
    {
        const FullDisk disk;
        EXPECT_EQ(0U, setDword(HKEY_CURRENT_USER, L"number", 2));
        EXPECT_EQ(before, fileOnDisk());
        EXPECT_EQ(2U, dword(HKEY_CURRENT_USER, L"number"));
    }
    EXPECT_EQ(0U, setDword(HKEY_CURRENT_USER, L"other", 3));
    EXPECT_EQ("[number]\nnumber=1$2\n\n[other]\nother=1$3\n", fileOnDisk());
}

TEST_F(StoreFaults, LockOfAnotherProgramIsWaitedFor)
{
    // The other program lets go when this one has begun to save, or is about to.
    std::array<int, 2> saving{};
    ASSERT_EQ(0, pipe(saving.data()));
    beginProgram([&] {
        QLockFile lock(store.fileName() + ".lock");
        if (lock.lock()) {
            tell();
            char byte = 0;
            EXPECT_EQ(1, ::read(saving[0], &byte, 1));
        }
    });
    waitToBeTold();
    EXPECT_EQ(0U, setDword(HKEY_CURRENT_USER, L"number", 42));
    EXPECT_EQ(1, ::write(saving[1], "x", 1));
    EXPECT_EQ("[number]\nnumber=1$42\n", fileOnDisk());
    endProgram();
}

TEST_F(StoreFaults, LockOfAProgramThatWasKilledIsTaken)
{
    beginProgram([&] {
        QLockFile lock(store.fileName() + ".lock");
        if (lock.lock())
            tell();
        pause();
    });
    waitToBeTold();
    endProgram();
    EXPECT_EQ(0U, setDword(HKEY_CURRENT_USER, L"number", 42));
    EXPECT_EQ("[number]\nnumber=1$42\n", fileOnDisk());
}

// Of a thousand writes, each of them saved, those up to one are in the file and none behind it.
TEST_F(StoreFaults, KilledProgramLeavesTheOldOrTheNewState)
{
    for (const int writes : {1, 10, 50, 120}) {
        QFile::remove(store.fileName());
        beginProgram([this] {
            QSettings own(store.fileName(), QSettings::IniFormat);
            g_globalSettings = &own;
            manager.emplace();
            for (unsigned int i = 0; i < 1000; ++i) {
                setDword(HKEY_CURRENT_USER, std::to_wstring(i).c_str(), i);
                own.sync();
                tell();
            }
            pause();
        });
        for (int i = 0; i < writes; ++i)
            waitToBeTold();
        endProgram();
        const QString copy = folder.filePath(QStringLiteral("copy%1.ini").arg(writes));
        EXPECT_TRUE(QFile::copy(store.fileName(), copy));
        const QSettings left(copy, QSettings::IniFormat);
        const int count = left.allKeys().size();
        EXPECT_LE(writes, count);
        for (int i = 0; i < count; ++i)
            EXPECT_EQ(QStringLiteral("1$%1").arg(i),
                      left.value(QStringLiteral("%1/%1").arg(i)).toString());
        EXPECT_EQ(QSettings::NoError, left.status());
    }
}

} // namespace
