#include "trace/replay/Minimiser.h"
#include "tests/trace/replay/BrokenServices.h"
#include "tests/trace/replay/ReplayTest.h"
#include "trace/replay/DeltaDebugging.h"
#include "trace/replay/ReplaySource.h"

#include <algorithm>

namespace replay {
namespace {

using Made = MadeRecording;
using Numbers = std::vector<qint64>;

Numbers upTo(qint64 last)
{
    Numbers numbers;
    for (qint64 i = 1; i <= last; ++i)
        numbers.push_back(i);
    return numbers;
}

Numbers shrunk(const Numbers& from, const Numbers& wanted)
{
    return DeltaDebugging([&wanted](const Numbers& tried) {
               return std::includes(tried.begin(), tried.end(), wanted.begin(), wanted.end());
           })
        .shrink(from);
}

TEST(DeltaDebugging, FindsWhatIsNeededAlone)
{
    EXPECT_EQ(shrunk(upTo(100), {}), Numbers());
    EXPECT_EQ(shrunk(upTo(100), {100}), Numbers({100}));
    EXPECT_EQ(shrunk(upTo(100), {1, 50, 99}), Numbers({1, 50, 99}));
    EXPECT_EQ(shrunk(upTo(7), upTo(7)), upTo(7));
    EXPECT_EQ(shrunk({5}, {5}), Numbers({5}));
    EXPECT_EQ(shrunk({}, {}), Numbers());
}

// Every element of what is left is needed, also where there are several ways.
TEST(DeltaDebugging, LeavesNothingThatCouldGo)
{
    const auto passes = [](const Numbers& tried) {
        qint64 sum = 0;
        for (const qint64 number : tried)
            sum += number;
        return sum >= 150;
    };
    const Numbers left = DeltaDebugging(passes).shrink(upTo(40));
    ASSERT_TRUE(passes(left));
    for (std::size_t i = 0; i < left.size(); ++i) {
        Numbers without = left;
        without.erase(without.begin() + static_cast<std::ptrdiff_t>(i));
        EXPECT_FALSE(passes(without));
    }
}

class MinimiserTest : public ReplayTest
{
protected:
    // Many keys with a value each; one of them is asked for what the broken service spoils.
    static QByteArray session()
    {
        Made made;
        for (int i = 0; i < 8; ++i) {
            const QByteArray number = QByteArray::number(i);
            const QByteArray handle = "0x550" + number;
            made.add(BrokenServices::set("HKEY_CURRENT_USER", "K" + number))
                .add(Made::open("HKEY_CURRENT_USER", "K" + number, handle))
                .add(BrokenServices::set(handle, "N" + number))
                .add(Made::query(handle, "N" + number, "07000000"))
                .add(Made::close(handle));
        }
        return made.bytes();
    }
    static constexpr qint64 spoilt = 3 * 5 + 4; // the query of the fourth key

    std::unique_ptr<ReplaySource> source(const QByteArray& bytes)
    {
        write("a.trace", bytes);
        auto source = std::make_unique<ReplaySource>(path("a.trace"));
        EXPECT_TRUE(source->open()) << source->error().toStdString();
        return source;
    }
};

TEST_F(MinimiserTest, ShrinksABrokenServiceToAFewCalls)
{
    const auto recording = source(session());
    Minimiser minimiser(*recording, spoilt);
    minimiser.setServices(BrokenServices::make(Fault::OtherAnswer));
    ASSERT_TRUE(minimiser.run()) << minimiser.error().toStdString();
    EXPECT_EQ(minimiser.calls(), Numbers({spoilt - 3, spoilt - 2, spoilt - 1, spoilt}));
    EXPECT_EQ(minimiser.outermostCount(), 4);
}

TEST_F(MinimiserTest, ShrinksACrash)
{
    const auto recording = source(session());
    Minimiser minimiser(*recording, spoilt);
    minimiser.setServices(BrokenServices::make(Fault::Crash));
    ASSERT_TRUE(minimiser.run()) << minimiser.error().toStdString();
    EXPECT_EQ(minimiser.calls().size(), 4U);
}

TEST_F(MinimiserTest, KeepsNothingElseWhereNothingElseMatters)
{
    const auto recording = source(session());
    Minimiser minimiser(*recording, 6);
    ASSERT_TRUE(minimiser.run()) << minimiser.error().toStdString();
    EXPECT_EQ(minimiser.calls(), Numbers({6}));
    EXPECT_LE(minimiser.replayCount(), 3);
}

TEST_F(MinimiserTest, SaysWhyACallHasNoAnswer)
{
    const auto recording = source(session() + Made::line(41, Made::query("0x77", "A", "")));
    Minimiser unknown(*recording, 41);
    EXPECT_FALSE(unknown.run());
    EXPECT_EQ(unknown.error(),
              "Call 41 cannot be performed. No call of the recording made the handle.");
    Minimiser absent(*recording, 99);
    EXPECT_FALSE(absent.run());
    EXPECT_EQ(absent.error(), "There is no call 99 of a service.");
    Minimiser after(*recording, spoilt + 1);
    after.setServices(BrokenServices::make(Fault::Crash));
    EXPECT_FALSE(after.run());
    EXPECT_EQ(after.error(), "The services crash before it, in call 19.");
}

} // namespace
} // namespace replay
