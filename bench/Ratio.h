#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

/// Runs `ours` and `peer` in turn, so that both see the same state of the machine. The time that is
/// reported is that of `ours`; "ratio" says how many times that of `peer` it is, the shortest run
/// of each taken, which other programs disturb least. "limit" is the ratio that is wanted at most;
/// 0 for none.
template <typename Ours, typename Peer>
void compare(benchmark::State& state, Ours ours, Peer peer, double limit = 0)
{
    using Clock = std::chrono::steady_clock;
    using Seconds = std::chrono::duration<double>;
    Seconds bestOfOurs = Seconds::max();
    Seconds bestOfPeer = Seconds::max();
    for ([[maybe_unused]] auto iteration : state) {
        const auto start = Clock::now();
        peer();
        const auto middle = Clock::now();
        ours();
        const Seconds time = Clock::now() - middle;
        state.SetIterationTime(time.count());
        bestOfOurs = std::min(bestOfOurs, time);
        bestOfPeer = std::min(bestOfPeer, Seconds(middle - start));
    }
    state.counters["ratio"] = bestOfOurs / bestOfPeer;
    if (limit > 0)
        state.counters["limit"] = limit;
}
