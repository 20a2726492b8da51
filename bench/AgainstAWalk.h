#pragma once

#include "bench/Ratio.h"
#include "session/Session.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <ctime>
#include <functional>
#include <vector>

// Measures what a screen does against one bare walk over the tables, which no answer can do without.
namespace dravik {

// Looks at every record of both tables once and counts whom the test takes, as whoever lists people must.
template <class Takes>
long long WalkTables(const Takes& takes)
{
    long long found = 0;
    for (const Player& player : Players)
        found += player.InUse && takes(player) ? 1 : 0;
    for (const Goalie& keeper : Goalies)
        found += keeper.InUse && takes(keeper) ? 1 : 0;
    return found;
}

// Milliseconds on the clock and of the processor.
struct Cost {
    double Wall;
    double Cpu;
};

inline Cost CostOf(const std::function<void()>& work)
{
    const std::clock_t cpu = std::clock();
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - start;
    return {wall.count(), 1000.0 * static_cast<double>(std::clock() - cpu) / CLOCKS_PER_SEC};
}

// Runs the work of a bench and a walk in turn, so that both meet the same weather. The walk must take `people`.
template <class Bench, class Takes>
void MeasureAgainstAWalk(benchmark::State& state, Bench& bench, void (Bench::*work)(), const Takes& takes,
                         long long people)
{
    Demand(WalkTables(takes) == people);
    (bench.*work)();
    (bench.*work)();
    std::vector<double> ours;
    std::vector<double> cpu;
    std::vector<double> walks;
    for ([[maybe_unused]] auto _ : state) {
        const Cost cost = CostOf([&] { (bench.*work)(); });
        ours.push_back(cost.Wall);
        cpu.push_back(cost.Cpu);
        walks.push_back(CostOf([&takes] { benchmark::DoNotOptimize(WalkTables(takes)); }).Cpu);
        state.SetIterationTime(cost.Wall / 1000);
    }
    state.counters["ours_ms"] = Median(ours);
    state.counters["cpu_ms"] = Median(cpu);
    state.counters["worst_ms"] = *std::max_element(ours.begin(), ours.end());
    state.counters["worst_cpu_ms"] = *std::max_element(cpu.begin(), cpu.end());
    state.counters["walk_ms"] = Median(walks);
    state.counters["ratio"] = Median(cpu) / Median(walks);
}

} // namespace dravik
