#include "inspection/host/LoadTrial.h"
#include "tests/inspection/host/HostFile.h"

#include <csignal>
#include <sys/stat.h>

namespace {

using Outcome = LoadTrial::Outcome;
using namespace std::chrono_literals;

TEST(LoadTrial, SaysThatALibraryWasLoaded)
{
    EXPECT_EQ(Outcome::Loaded, tryLoading(testLibrary("proper")).outcome);
}

TEST(LoadTrial, GivesTheLoadersMessage)
{
    const LoadTrial trial = tryLoading(testLibrary("missing_symbol"));
    EXPECT_EQ(Outcome::Refused, trial.outcome);
    EXPECT_TRUE(trial.detail.contains("neverWritten")) << trial.detail.toStdString();
    EXPECT_TRUE(trial.text().contains(trial.detail));
}

TEST(LoadTrial, NamesTheSignalOfACrash)
{
    const LoadTrial trial = tryLoading(testLibrary("crashes"));
    EXPECT_EQ(Outcome::Crashed, trial.outcome);
    EXPECT_EQ(QString::fromLocal8Bit(strsignal(SIGSEGV)), trial.detail);
}

TEST(LoadTrial, TellsALibraryThatEndsTheProcess)
{
    const LoadTrial trial = tryLoading(testLibrary("exits"));
    EXPECT_EQ(Outcome::Ended, trial.outcome);
    EXPECT_EQ("3", trial.detail);
}

TEST(LoadTrial, EndsALibraryThatHangs)
{
    const LoadTrial trial = tryLoading(testLibrary("hangs"), 300ms);
    EXPECT_EQ(Outcome::Hung, trial.outcome);
    EXPECT_EQ("0.3", trial.detail);
}

TEST(LoadTrial, TakesAnyFile)
{
    const FileFolder folder;
    EXPECT_EQ(Outcome::Refused, tryLoading(folder.file("script.so", "#!/bin/sh\n")).outcome);
    EXPECT_EQ(Outcome::Refused, tryLoading(folder.path()).outcome);
    EXPECT_EQ(Outcome::Refused, tryLoading(folder.path("none.so")).outcome);
    ASSERT_EQ(0, mkfifo(QFile::encodeName(folder.path("pipe.so")).constData(), 0600));
    EXPECT_EQ(Outcome::Hung, tryLoading(folder.path("pipe.so"), 200ms).outcome);
}

TEST(LoadTrial, LooksForANameWithoutAFolderInTheWorkingDirectory)
{
    EXPECT_EQ(Outcome::Refused, tryLoading("libc.so.6").outcome);
}

} // namespace
