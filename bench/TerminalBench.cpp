#include "bench/BareInflate.h"
#include "bench/Ratio.h"
#include "desk/LineMakers.h"
#include "rules/LineJudge.h"
#include "rules/RosterJudge.h"
#include "support/ClientFileBytes.h"
#include "support/SmallLeague.h"
#include "terminal/Verbs.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <iostream>
#include <sstream>
#include <thread>
#include <vector>

// What `dravik check` of a full league costs, in terms of what nobody can do without: inflating the file and asking the judges.
namespace dravik {
namespace {

constexpr double CheckLimit = 1.3; // of inflating, and a hundred times a team's roster with its payroll and twenty days
// Two threads at least 1.8 times one after the other, where the machine makes bare arithmetic twice as fast: nine tenths of what
// it has to give.
constexpr double ThreadsLimit = 2 / 1.8;
constexpr double millisecond = 1e-3;

// Fills the open league to its last slot: a hundred teams with complete rosters and lines for all days, and everybody else
// without a team.
void FillLeague()
{
    ResetClientVariables();
    SetOrdinaryRules();
    LeagueData.LeagueCode = "ABC12";
    LeagueData.FileDate = 46000;
    LeagueData.FarmEnabled = true;
    LeagueData.FarmMaxOverall = 99;
    for (int team = 1; team <= TeamTable::last; ++team) {
        TeamMaker(team).DressesFullRoster().FarmsFullRoster();
        for (int day = 1; day <= LineDays; ++day)
            for (const Side side : {Side::Pro, Side::Farm})
                MakeDay(OpenWork(), team, day, side);
    }
    for (int index = 1; index <= PlayerTable::last; ++index)
        if (!Players[index].InUse)
            PutSkater(index, 0, 1 + index % 4, status::Farm, 40 + index % 50);
    for (int index = 1; index <= GoalieTable::last; ++index)
        if (!Goalies[index].InUse)
            PutGoalie(index, 0, status::Farm, 40 + index % 50);
}

const std::string& FullLeague()
{
    static ScriptedPlatform machine;
    static const std::string path = [] {
        UseMachine(machine);
        FillLeague();
        (void)machine.TakeBoxes();
        WriteWhole(machine.InFolder("Full.dvs"), Wrapped(ClientSlots(), 9));
        return machine.InFolder("Full.dvs");
    }();
    return path;
}

// Runs the verb itself, its text thrown away. It has to end with everybody complete.
void Check(std::vector<std::string> arguments)
{
    CLI::App program;
    const terminal::Verb verb = terminal::AddCheck(program);
    arguments.insert(arguments.begin(), "check");
    std::reverse(arguments.begin(), arguments.end());
    program.parse(arguments);
    std::ostringstream text;
    std::streambuf* before = std::cout.rdbuf(text.rdbuf());
    const int end = verb.Run();
    std::cout.rdbuf(before);
    Demand(end == 0 && text.str().find("100 Team 100: complete") != std::string::npos);
}

void BareCheck()
{
    InflateBare(FullLeague());
    constexpr int team = 50;
    for (int time = 0; time < TeamTable::last; ++time) {
        Demand(CheckRoster(OpenWork(), team, false, true, false).Complete);
        for (int day = 1; day <= LineDays; ++day)
            for (const Side side : {Side::Pro, Side::Farm})
                Demand(JudgeDay(OpenWork(), team, side, day, false).Complete);
    }
}

void CheckAFullLeague(benchmark::State& state)
{
    const std::string& league = FullLeague();
    HoldTo(state,
           Compare(
               state, [&] { Check({league}); }, BareCheck, millisecond),
           CheckLimit);
}

// Arithmetic that asks nothing of the memory: a piece takes about as long as a league.
void BareArithmetic()
{
    constexpr int steps = 20'000'000;
    constexpr std::uint64_t factor = 6364136223846793005U;
    std::uint64_t one = 1;
    std::uint64_t other = 3;
    for (int step = 0; step < steps; ++step) {
        one = one * factor + 1;
        other ^= other >> 7U;
        other += one;
    }
    benchmark::DoNotOptimize(one + other);
}

// So many pieces of it, on so many threads, each of which takes the next one, as the verb has its leagues done.
void BarePieces(std::size_t count, int threads)
{
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> running;
    for (int thread = 0; thread < threads; ++thread)
        running.emplace_back([&] {
            while (next++ < count)
                BareArithmetic();
        });
}

// Two leagues at a time, several times over, in terms of one after the other; and the same of bare arithmetic, in turn. Where
// others work on the machine, or its processors are not two, arithmetic shows what two threads can gain there. The fastest of each
// counts: that a thread waits for its processor says nothing of what it does there. Beside it stands the median.
void CheckLeaguesOnTwoThreads(benchmark::State& state)
{
    constexpr std::size_t leagues = 24;
    const std::vector<std::string> one(leagues, FullLeague());
    std::vector<std::string> two = one;
    two.insert(two.begin(), {"-j", "2"});
    std::vector<double> bareOfTwo;
    std::vector<double> bareOfOne;
    std::vector<double> oursOfTwo;
    std::vector<double> oursOfOne;
    Check(one);
    for ([[maybe_unused]] auto _ : state) {
        bareOfTwo.push_back(Seconds([] { BarePieces(leagues, 2); }));
        oursOfTwo.push_back(Seconds([&] { Check(two); }));
        bareOfOne.push_back(Seconds([] { BarePieces(leagues, 1); }));
        oursOfOne.push_back(Seconds([&] { Check(one); }));
        state.SetIterationTime(oursOfTwo.back());
    }
    const auto best = [](const std::vector<double>& times) { return *std::min_element(times.begin(), times.end()); };
    const double ours = best(oursOfTwo) / best(oursOfOne);
    const double bare = best(bareOfTwo) / best(bareOfOne);
    state.counters["ours"] = ours;
    state.counters["ours_median"] = Median(oursOfTwo) / Median(oursOfOne);
    state.counters["bare"] = bare;
    state.counters["bare_median"] = Median(bareOfTwo) / Median(bareOfOne);
    state.counters["ratio"] = ours / bare;
    HoldTo(state, ours / bare, ThreadsLimit);
}

void RegisterCases()
{
    const auto add = [](const char* name, void (*work)(benchmark::State&), int times) {
        benchmark::RegisterBenchmark(name, work)->Iterations(times)->UseManualTime()->Unit(benchmark::kMillisecond);
    };
    add("CheckAFullLeague", CheckAFullLeague, 31);
    add("CheckLeaguesOnTwoThreads", CheckLeaguesOnTwoThreads, 15);
}

} // namespace
} // namespace dravik

int main(int argc, char** argv)
{
    dravik::RegisterCases();
    return dravik::RunBenchmarks(argc, argv);
}
