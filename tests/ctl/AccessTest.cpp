#include "tests/ctl/CtlTest.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Files that others hold, or that the user may not read or write.
class CtlAccess : public CtlTest
{
protected:
    /// "$CTL" as a user to whom permissions apply, and who reaches the test's folder; empty where
    /// there is none who can run it.
    QString otherUser() const
    {
        if (geteuid() != 0)
            return QStringLiteral("$CTL");
        const QString other =
            QStringLiteral("setpriv --reuid=65534 --regid=65534 --clear-groups $CTL");
        const QString reach = "chmod o+rx . && chmod o+x .. ../.. && touch reached && "
                              "setpriv --reuid=65534 --regid=65534 --clear-groups "
                              "test -r \"$PWD/reached\" && rm reached && ";
        return shell(reach + other + " --version").status == 0 ? other : QString();
    }
};

TEST_F(CtlAccess, IsRefusedToAStoreThatMayNotBeRead)
{
    const QString program = otherUser();
    if (program.isEmpty())
        GTEST_SKIP() << "no other user can run the program";
    write("s.ini", "[A]\nv=5$x\n");
    const Result result = shell("chmod 000 s.ini; " + program + " --store s.ini registry list");
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("s.ini"));
    EXPECT_EQ(shell(program + " --store s.ini registry set A v y").status, 3);
    EXPECT_EQ(shell("chmod 600 s.ini; cat s.ini").out, "[A]\nv=5$x\n");
}

TEST_F(CtlAccess, IsRefusedToAStoreThatMayNotBeWritten)
{
    const QString program = otherUser();
    if (program.isEmpty())
        GTEST_SKIP() << "no other user can run the program";
    write("folder/s.ini", "[A]\nv=5$x\n");
    shell("chmod 444 folder/s.ini; chmod 555 folder");
    EXPECT_EQ(shell(program + " --store folder/s.ini registry get A v").out, "x\n");
    for (const QString& command :
         QStringList{"set A v y", "delete A v", "rename A B", "copy A B"}) {
        const Result result = shell(program + " --store folder/s.ini registry " + command);
        EXPECT_EQ(result.status, 3) << command.toStdString();
        EXPECT_TRUE(result.error.contains("could not be saved")) << result.error.toStdString();
    }
    EXPECT_EQ(read("folder/s.ini"), "[A]\nv=5$x\n");
    shell("chmod 755 folder");
}

TEST_F(CtlAccess, IsRefusedToProfilesAndOtherFiles)
{
    const QString program = otherUser();
    if (program.isEmpty())
        GTEST_SKIP() << "no other user can run the program";
    write("p.ini", "[s]\nk=v\n");
    shell("chmod 000 p.ini");
    for (const QString& command :
         QStringList{"profile list p.ini", "profile get p.ini s k --wide",
                     "profile set p.ini s k w --narrow", "profile delete p.ini s --wide",
                     "profile merge p.ini --wide </dev/null", "profile check p.ini",
                     "profile compare p.ini", "crypto digest p.ini", "crypto base64 p.ini",
                     "registry import p.ini", "registry compare p.ini p.ini",
                     "crypto encrypt p.ini --pass-phrase-file p.ini", "host check p.ini"})
        EXPECT_EQ(shell("XDG_DATA_HOME=none " + program + ' ' + command).status, 3)
            << command.toStdString();
    EXPECT_EQ(shell("chmod 600 p.ini; cat p.ini").out, "[s]\nk=v\n");
}

// As QSettings has it: reading needs no lock, and a change waits for it. The shell holds it.
TEST_F(CtlAccess, WaitsForTheLockOfAStoreBeforeItSaves)
{
    write("s.ini", "[A]\nv=5$x\n");
    const Result result =
        shell("printf '%s\\nbash\\n%s\\n' $$ \"$(uname -n)\" >s.ini.lock;"
              "$CTL --store s.ini registry get A v;"
              "$CTL --store s.ini registry set A v y & writer=$!;"
              "until $CTL --store s.ini registry get A v; do :; done;"
              "kill -0 $writer && cat s.ini; rm s.ini.lock; wait $writer; exit $?");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "x\nx\n[A]\nv=5$x\n");
    EXPECT_EQ(read("s.ini"), "[A]\nv=5$y\n");
}

TEST_F(CtlAccess, EndsTheWaitForALockWhenTheUserDoesNotWait)
{
    if (isEmulated())
        GTEST_SKIP() << "the system shows the signals that the emulator handles";
    write("s.ini", "[A]\nv=5$x\n");
    const Result result =
        shell("printf '%s\\nbash\\n%s\\n' $$ \"$(uname -n)\" >s.ini.lock;"
              "$CTL --store s.ini registry set A v y & writer=$!;"
              "until grep -qs 'SigCgt:.*[4-7c-f]..[37bf]$' /proc/$!/status; do sleep 0.05; done;"
              "kill -INT $writer; wait $writer; status=$?; rm s.ini.lock; exit $status");
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("Interrupted")) << result.error.toStdString();
    EXPECT_EQ(read("s.ini"), "[A]\nv=5$x\n");
}

/// The most memory that a run of the program takes, in KiB.
long peakOf(const QStringList& line)
{
    const pid_t child = fork();
    if (child == 0) {
        std::vector<QByteArray> words;
        for (const QString& word : line)
            words.push_back(word.toLocal8Bit());
        std::vector<char*> pointers;
        for (QByteArray& word : words)
            pointers.push_back(word.data());
        pointers.push_back(nullptr);
        execv(pointers.front(), pointers.data());
        _exit(127);
    }
    int status = 0;
    struct rusage usage = {};
    EXPECT_EQ(wait4(child, &status, 0, &usage), child);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    return usage.ru_maxrss;
}

// What a single value takes is the store and the program.
TEST_F(CtlAccess, ToAllValuesTakesLessThanTwiceTheMemoryOfTheStore)
{
    if (isEmulated() || isSanitized())
        GTEST_SKIP() << "the emulator and the sanitizers take memory of their own";
    QByteArray store("[A]\n");
    for (int i = 0; i < 100000; ++i)
        store += "value" + QByteArray::number(i) + "=5$text\n";
    write("s.ini", store);
    const auto peak = [&](const QStringList& command) {
        return peakOf(QStringList{"/bin/sh", "-c", "exec \"$@\" >/dev/null", "sh"} + program() +
                      QStringList{"--store", path("s.ini"), "registry"} + command);
    };
    const long one = peak({"get", "A", "value1"});
    EXPECT_GT(one, 1000);
    EXPECT_LT(peak({"list", "-r"}), 2 * one);
}

} // namespace
