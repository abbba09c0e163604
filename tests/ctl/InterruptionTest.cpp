#include "tests/ctl/CtlTest.h"

namespace {

/// Programs that wait for a pipe which nobody writes to, or not to its end.
class CtlInterruption : public CtlTest, public testing::WithParamInterface<const char*>
{
};

// The shell keeps the pipe open, so that only the signal can end the program. It comes when the
// program has begun to note signals.
TEST_P(CtlInterruption, EndsTheWaitForInputAndLeavesEverythingAsItWas)
{
    if (isEmulated())
        GTEST_SKIP() << "the system shows the signals that the emulator handles";
    const QByteArray store("[A]\nv=5$x\n");
    const QByteArray profile("[s]\nk=v\n");
    writeStore(store);
    write("p.ini", profile);
    for (const QString& signal : QStringList{"INT", "TERM", "HUP"}) {
        const Result result =
            shell("rm -f pipe; mkfifo pipe; exec 9<>pipe; $CTL " + QString(GetParam()) +
                  " & until grep -qs 'SigCgt:.*[4-7c-f]..[37bf]$' /proc/$!/status;"
                  "do sleep 0.05; done; kill -" +
                  signal + " $!; wait $!");
        EXPECT_EQ(result.status, 3) << signal.toStdString();
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(result.error.contains("Interrupted")) << result.error.toStdString();
        EXPECT_EQ(storeBytes(), store);
        EXPECT_EQ(read("p.ini"), profile);
        EXPECT_EQ(shell("ls . data/quayside").out,
                  ".:\ndata\np.ini\npipe\n\ndata/quayside:\nregistry.ini\n");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Commands, CtlInterruption,
    testing::Values("crypto base64 <pipe", "crypto base64 pipe --output out", "crypto digest <pipe",
                    "crypto digest pipe", "crypto encrypt p.ini --pass-phrase-fd 5 5<pipe",
                    "crypto decrypt p.ini --pass-phrase-file pipe --output out",
                    "crypto encrypt p.ini --key-file pipe --iv-file pipe",
                    "registry import - <pipe", "registry import pipe --backup out",
                    "profile merge p.ini --wide <pipe"));

TEST_F(CtlInterruption, EndsTheWaitForAPipeThatNobodyHasOpened)
{
    if (isEmulated())
        GTEST_SKIP() << "the system shows the signals that the emulator handles";
    const Result result =
        shell("mkfifo pipe; $CTL crypto digest pipe &"
              "until grep -qs 'SigCgt:.*[4-7c-f]..[37bf]$' /proc/$!/status; do sleep 0.05; done;"
              "kill -INT $!; wait $!");
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.error.contains("Interrupted"));
}

} // namespace
