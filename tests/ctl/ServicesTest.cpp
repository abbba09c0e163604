#include "tests/ctl/CtlTest.h"

namespace {

/// The commands for files, fonts, displays and input.
class CtlServices : public CtlTest
{
};

TEST_F(CtlServices, FindFilesWithTheRecordsOfTheService)
{
    write("a.txt", "four");
    write("名.txt", "");
    const QByteArray found = out({"files", "find", "./*.txt"});
    EXPECT_EQ(found.count('\n'), 2);
    EXPECT_TRUE(found.startsWith("a.txt\t0x80 NORMAL\t4\t20"));
    EXPECT_TRUE(found.contains("\n名.txt\t0x80 NORMAL\t"));
    EXPECT_EQ(status({"files", "find", "./*.none"}), 1);
    EXPECT_EQ(status({"files", "find", "*.txt"}), 1);
}

TEST_F(CtlServices, AnswerForAPath)
{
    write("a.txt", "four");
    const QByteArray answers = out({"files", "stat", "./a.txt"});
    EXPECT_TRUE(answers.startsWith("exists\tyes\nrealPath\t"));
    EXPECT_TRUE(answers.contains("\nattributes\t0x80 NORMAL\n"));
    EXPECT_TRUE(answers.contains("\nextension\t.txt\n"));
    EXPECT_EQ(status({"files", "stat", "./none.txt"}), 1);
}

TEST_F(CtlServices, NeedNoDisplay)
{
    const Result fonts = run({"fonts", "list"});
    EXPECT_EQ(fonts.status, 0);
    EXPECT_EQ(fonts.error.isEmpty(), !fonts.out.isEmpty());
    EXPECT_EQ(shell("env -u DISPLAY $CTL displays list").status, 0);
    const Result stale = shell("DISPLAY=:none $CTL displays list");
    EXPECT_EQ(stale.status, 0);
    EXPECT_TRUE(stale.out.startsWith("1\t0, 0, "));
    EXPECT_EQ(stale.error, "");
}

TEST_F(CtlServices, ListFontsOfAFaceOrACharacterSet)
{
    const Result none = run({"fonts", "list", "no such face"});
    EXPECT_EQ(none.status, 1);
    EXPECT_TRUE(none.error.contains("no such font"));
    EXPECT_EQ(status({"fonts", "list", "--charset", "x"}), 2);
    EXPECT_EQ(status({"fonts", "list", "--charset", "256"}), 2);
    EXPECT_EQ(status({"fonts", "list", "--charset", "134"}), 1);
}

TEST_F(CtlServices, ListSystemMetrics)
{
    EXPECT_TRUE(out({"displays", "list", "--metrics"}).contains("16\tSM_CXFULLSCREEN\t"));
}

TEST_F(CtlServices, ListKeyStates)
{
    const QByteArray keys = out({"input", "keys"});
    EXPECT_TRUE(keys.contains("VK_SHIFT\t0x10\tyes\tup\n"));
    EXPECT_TRUE(keys.contains("VK_F1\t0x70\tno\tup\n"));
}

} // namespace
