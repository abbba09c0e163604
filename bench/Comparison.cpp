#include "bench/Comparison.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsOf(const Comparison::Work& work)
{
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double median(std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

} // namespace

void Comparison::run(const std::string& name, const Work& work, const std::string& peerName,
                     const Work& peer, double limit) const
{
    std::vector<double> times;
    std::vector<double> peerTimes;
    work();
    peer();
    for (int i = 0; i < m_rounds; ++i) {
        times.push_back(millisecondsOf(work));
        peerTimes.push_back(millisecondsOf(peer));
    }
    const double time = median(times);
    const double peerTime = median(peerTimes);
    std::printf("%-44s %8.3f ms   %-36s %8.3f ms   ratio %5.2f", name.c_str(), time,
                peerName.c_str(), peerTime, time / peerTime);
    if (limit > 0)
        std::printf(" (at most %.2f)", limit);
    std::printf("\n");
    std::fflush(stdout);
}
