#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace dravik {

// What was measured must have had its effect; a wrong answer would be a cheap one.
inline void Demand(bool holds)
{
    if (!holds)
        std::abort();
}

// Whether every figure so far was within its limit.
inline bool WithinLimits = true;

// Shows a limit beside the figures of a benchmark. A figure above it is marked and makes the run fail at its end.
inline void HoldTo(benchmark::State& state, double figure, double limit)
{
    state.counters["limit"] = limit;
    if (figure <= limit)
        return;
    state.SetLabel("ABOVE ITS LIMIT");
    WithinLimits = false;
}

// The name of the processor, as far as the system tells it.
inline std::string ProcessorName()
{
    std::ifstream about("/proc/cpuinfo");
    for (std::string line; std::getline(about, line);)
        if (line.starts_with("model name") && line.find(": ") != std::string::npos)
            return line.substr(line.find(": ") + 2);
    return "unknown";
}

// The `main` of a bench. Its exit code is 0 when every figure was within its limit, and 1 when one was not.
inline int RunBenchmarks(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::AddCustomContext("processor", ProcessorName());
    benchmark::RunSpecifiedBenchmarks();
    return WithinLimits ? 0 : 1;
}

inline double Seconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

// Runs both in turn, so that both meet the same weather. Counts and returns the median of ours divided by that of the bare
// work.
// `prepare` goes before each of ours, outside its time. The counters of the times are in units of `unit` seconds.
inline double Compare(
    benchmark::State& state, const std::function<void()>& ours, const std::function<void()>& bare, double unit,
    const std::function<void()>& prepare = [] {})
{
    prepare();
    ours();
    bare();
    std::vector<double> oursTimes;
    std::vector<double> bareTimes;
    for ([[maybe_unused]] auto _ : state) {
        prepare();
        oursTimes.push_back(Seconds(ours));
        bareTimes.push_back(Seconds(bare));
        state.SetIterationTime(oursTimes.back());
    }
    state.counters["ours"] = Median(oursTimes) / unit;
    state.counters["bare"] = Median(bareTimes) / unit;
    state.counters["worst"] = *std::max_element(oursTimes.begin(), oursTimes.end()) / unit;
    const double ratio = Median(oursTimes) / Median(bareTimes);
    state.counters["ratio"] = ratio;
    return ratio;
}

} // namespace dravik
