#include "tests/platform/profiles/ProfileManagerTest.h"

#include <array>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A program that is killed while it writes values of all lengths, again and again.
class ProfileKilled : public ProfileManagerTest
{
protected:
    static QByteArray profile(int entries, const QByteArray& last)
    {
        QByteArray text = "[S]\n";
        for (int i = 0; i < entries; ++i)
            text += "key" + QByteArray::number(100000 + i) + "=value\n";
        return text + "last=" + last + '\n';
    }

    void writeForEver(int tellTale)
    {
        for (int i = 0;; ++i) {
            const QByteArray value(1 + i * 37 % 90, 'x');
            writeNarrow("S", "last", value);
            if (::write(tellTale, "x", 1) != 1)
                _exit(1);
        }
    }

    // After so many writes have been made, and somewhere in one of those that follow.
    void killAfter(int writes)
    {
        std::array<int, 2> ends{};
        ASSERT_EQ(0, pipe(ends.data()));
        const pid_t child = fork();
        if (child == 0)
            writeForEver(ends[1]);
        char byte = 0;
        for (int i = 0; i < writes; ++i)
            EXPECT_EQ(1, ::read(ends[0], &byte, 1));
        EXPECT_EQ(0, kill(child, SIGKILL));
        EXPECT_EQ(child, waitpid(child, nullptr, 0));
        close(ends[0]);
        close(ends[1]);
    }

    // Without blank lines, which neither family reads.
    QByteArray linesOf() const
    {
        QByteArray text = content();
        while (text.endsWith("\n\n"))
            text.chop(1);
        return text;
    }
};

TEST_F(ProfileKilled, LeavesAFileOfOnePageWhole)
{
    for (int round = 1; round <= 40; ++round) {
        write(profile(200, "v"));
        killAfter(round);
        const QByteArray text = linesOf();
        const QByteArray beginning = profile(200, QByteArray()).chopped(1);
        const QByteArray last = text.mid(beginning.size()).trimmed();
        EXPECT_EQ(beginning, text.left(beginning.size()));
        EXPECT_FALSE(last.isEmpty());
        EXPECT_EQ(QByteArray(last.size(), 'x'), last);
    }
}

// All but the page that the value stands in.
TEST_F(ProfileKilled, LeavesAFileOfManyPagesWithAllThatStays)
{
    const QByteArray stays = profile(7000, QByteArray()).chopped(1);
    for (int round = 1; round <= 10; ++round) {
        write(stays + "v\n");
        killAfter(round);
        EXPECT_EQ(stays, content().left(stays.size()));
    }
}

} // namespace
