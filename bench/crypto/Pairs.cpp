#include "bench/crypto/Pairs.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <random>

namespace {

constexpr int repetitions = 9;
constexpr double secondsEach = 0.01;

/// Collects the time of each repetition instead of printing it.
class Collector : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& /*context*/) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration)
                m_seconds[run.run_name.function_name].push_back(
                    timeOf(run) / static_cast<double>(run.iterations));
        }
    }

    double median(const std::string& name)
    {
        std::vector<double>& seconds = m_seconds.at(name);
        std::sort(seconds.begin(), seconds.end());
        return seconds[seconds.size() / 2];
    }

private:
    // What an operation times itself is told as real time.
    static double timeOf(const Run& run)
    {
        return run.run_name.time_type.empty() ? run.cpu_accumulated_time
                                              : run.real_accumulated_time;
    }

    std::map<std::string, std::vector<double>> m_seconds;
};

constexpr int coldIterations = 50;

// Twice as large as the caches that a core has for itself. What all cores share is too large to be
// emptied.
void emptyCaches()
{
    constexpr std::size_t size = 8U * 1024 * 1024;
    constexpr std::size_t line = 64;
    static std::vector<unsigned char> memory(size);
    for (std::size_t i = 0; i < size; i += line)
        ++memory[i];
    benchmark::ClobberMemory();
}

void registerColdOperation(const std::string& name, const std::function<void()>& operation)
{
    using Clock = std::chrono::steady_clock;
    const auto run = [operation](benchmark::State& state) {
        for ([[maybe_unused]] const auto _ : state) {
            emptyCaches();
            const Clock::time_point start = Clock::now();
            operation();
            state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        }
    };
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->Repetitions(repetitions)
        ->Iterations(coldIterations)
        ->UseManualTime();
}

void registerOperation(const std::string& name, const std::function<void()>& operation)
{
    const auto run = [operation](benchmark::State& state) {
        for ([[maybe_unused]] const auto _ : state) {
            operation();
            benchmark::ClobberMemory();
        }
    };
    benchmark::RegisterBenchmark(name.c_str(), run)->Repetitions(repetitions)->MinTime(secondsEach);
}

} // namespace

std::vector<Result> runPairs(const Pairs& pairs)
{
    // Repetitions take turns, so that a slow moment of the machine hits both sides of a pair.
    char program[] = "crypto_bench";
    char interleave[] = "--benchmark_enable_random_interleaving=true";
    char* arguments[] = {program, interleave};
    int count = 2;
    benchmark::Initialize(&count, arguments);
    for (const Pair& pair : pairs) {
        const auto add = pair.isCold ? &registerColdOperation : &registerOperation;
        add(pair.name + " (ours)", pair.ours);
        add(pair.name + " (peer)", pair.peer);
    }
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    std::vector<Result> results;
    for (const Pair& pair : pairs) {
        const auto bytes = static_cast<double>(pair.bytes);
        results.push_back({pair.name, pair.wanted, bytes / collector.median(pair.name + " (ours)"),
                           bytes / collector.median(pair.name + " (peer)")});
    }
    return results;
}

std::string sampleBytes(std::size_t count)
{
    std::mt19937 engine(1);
    std::string bytes(count, '\0');
    std::generate(bytes.begin(), bytes.end(), [&engine] { return static_cast<char>(engine()); });
    return bytes;
}

const unsigned char* bytesOf(const std::string& text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

unsigned char* bytesOf(std::string& text)
{
    return reinterpret_cast<unsigned char*>(text.data());
}
