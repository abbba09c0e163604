#include "inspection/Computation.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using namespace std::chrono_literals;

TEST(Computation, GivesItsResult)
{
    Computation<int> computation([] { return 42; });
    ASSERT_TRUE(computation.isDone(60s));
    EXPECT_EQ(computation.take(), 42);
}

TEST(Computation, IsDoneBesideItsOwner)
{
    Computation<std::thread::id> computation([] { return std::this_thread::get_id(); });
    ASSERT_TRUE(computation.isDone(60s));
    EXPECT_NE(computation.take(), std::this_thread::get_id());
}

TEST(Computation, IsNotWaitedForWhenItIsDropped)
{
    std::promise<void> go;
    std::promise<void> end;
    {
        const Computation<int> computation([&go, &end] {
            go.get_future().wait();
            end.set_value();
            return 0;
        });
        EXPECT_FALSE(computation.isDone(1ms));
    }
    go.set_value();
    end.get_future().wait();
}

} // namespace
