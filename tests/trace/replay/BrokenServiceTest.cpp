#include "tests/trace/replay/BrokenServices.h"
#include "tests/trace/replay/ReplayTest.h"

#include <csignal>

namespace replay {
namespace {

using Made = MadeRecording;

class BrokenServiceTest : public ReplayTest
{
protected:
    static QByteArray usual()
    {
        Made made;
        for (int i = 0; i < 5; ++i) {
            const QByteArray name = "N" + QByteArray::number(i);
            made.add(BrokenServices::set("HKEY_CURRENT_USER", name));
        }
        return made.add(Made::query("HKEY_CURRENT_USER", "N3", "07000000")).bytes();
    }
};

TEST_F(BrokenServiceTest, IsFoundByReplay)
{
    EXPECT_EQ(differences(replay(usual())), "");
    EXPECT_EQ(differences(replay(usual(), BrokenServices::make(Fault::OtherAnswer))),
              "6 data: <07000000> (4 bytes) -> <ff000000> (4 bytes)\n");
}

TEST_F(BrokenServiceTest, IsFoundWhereItWritesBesideTheBuffer)
{
    EXPECT_EQ(differences(replay(usual(), BrokenServices::make(Fault::Overrun))),
              "6 data:  -> written beyond the buffer\n");
}

TEST_F(BrokenServiceTest, IsFoundWhereItCrashes)
{
    const ReplayReport report = replay(usual(), BrokenServices::make(Fault::Crash));
    EXPECT_EQ(report.crashedIn, 6);
    EXPECT_EQ(report.signal, SIGKILL);
    EXPECT_FALSE(report.isEqual());
}

} // namespace
} // namespace replay
