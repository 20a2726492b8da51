// What the roster screen costs on a full league, each against one bare walk over the tables inside one run: the counter
// "ratio" is the processor's time for ours divided by that for the walk. "cpu_ms" is to stay below one frame (16 ms), and
// so is "ours_ms", the time on the clock, where nobody else keeps the machine busy.
//
//     roster_bench

#include "screens/frmMain.h"
#include "screens/frmRoster.h"
#include "screens/platform/Palettes.h"
#include "screens/Stage.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <ctime>
#include <functional>
#include <QApplication>
#include <QTest>
#include <vector>

namespace dravik {
namespace {

constexpr int Own = 5;

// Every slot of the tables is in use: 60 people of the team at hand, spread over the tables, and others in all the rest.
void FillLeague()
{
    ResetClientVariables();
    MessagesAllowed = true;
    MarkRosterChangesUntouched();
    TeamMaker made(Own);
    SetPlainWeights();
    League& league = LeagueData;
    league.MaxProPlayers = 60;
    league.FarmMaxOverall = 99;
    league.MaxSalary = 10000000;
    league.ShowOverall = true;
    league.ShowAllRatings = true;
    league.ProDressedSkaters = 18;
    league.MaxDressedGoalies = 2;
    league.RequiredCenters = 3;
    league.RequiredLeftWings = 3;
    league.RequiredRightWings = 3;
    league.RequiredDefensemen = 6;
    PlayerStatCount = 15;
    GoalieStatCount = 13;
    const auto statusOf = [](int place, int dressed) {
        return place < dressed ? status::Pro : place % 2 == 0 ? status::Scratch : status::Farm;
    };
    for (int id = 1; id <= 10000; ++id)
        PutSkater(id, 6 + id % 30, 1 + id % 4, status::Pro, 40 + id % 50);
    for (int id = 1; id <= 1000; ++id)
        PutGoalie(id, 6 + id % 30, status::Pro, 40 + id % 50);
    for (int place = 0; place < 54; ++place)
        PutSkater(1 + place * 185, Own, 1 + place % 4, statusOf(place, 18), 50 + place % 30);
    for (int place = 0; place < 6; ++place)
        PutGoalie(1 + place * 185, Own, statusOf(place, 2), 60);
}

class Bench {
public:
    Bench()
    {
        UseMachine(machine);
        stage.Start();
        FillLeague();
        CurrentTeam = Own;
        CallerScreen = "Main";
        stage.Open("Roster", *stage.Find("Main"));
        QApplication::processEvents();
    }

    frmRoster& Roster() { return *static_cast<frmRoster*>(stage.Find("Roster")); }

    // One click of the mouse, painted.
    void Click()
    {
        PickList* list = Roster().lstPlayer[status::Pro];
        const QModelIndex entry = list->model()->index(turn++ % 5, 0);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(entry).center());
        Roster().grab();
    }
    // Everybody listed and judged anew, painted.
    void Rebuild()
    {
        Roster().ShowPlayer(false);
        Roster().grab();
    }
    // A dressed person sent to the scratches, or the one who went there back to the pro list, painted.
    void Move()
    {
        const bool isDown = turn++ % 2 == 0;
        PickList* list = Roster().lstPlayer[isDown ? status::Pro : status::Scratch];
        const QModelIndex entry = list->model()->index(isDown ? 0 : list->count() - 1, 0);
        list->scrollTo(entry);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(entry).center());
        (isDown ? Roster().cmdToScratchesFromPro : Roster().cmdToPro)->click();
        Roster().grab();
    }

private:
    ScriptedPlatform machine;
    Stage stage;
    int turn = 0;
};

Bench& TheBench()
{
    static Bench bench;
    return bench;
}

// Looks at every record of both tables once, as whoever wants to know a team's people must.
long long WalkTables()
{
    long long found = 0;
    for (const Player& player : Players)
        found += player.InUse && player.Team == Own ? 1 : 0;
    for (const Goalie& keeper : Goalies)
        found += keeper.InUse && keeper.Team == Own ? 1 : 0;
    return found;
}

// Milliseconds on the clock and of the processor.
struct Cost {
    double Wall;
    double Cpu;
};

Cost CostOf(const std::function<void()>& work)
{
    const std::clock_t cpu = std::clock();
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - start;
    return {wall.count(), 1000.0 * static_cast<double>(std::clock() - cpu) / CLOCKS_PER_SEC};
}

double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

// Runs the work and a walk in turn, so that both meet the same weather.
void AgainstAWalk(benchmark::State& state, void (Bench::*work)())
{
    Bench& bench = TheBench();
    if (WalkTables() != 60)
        std::abort();
    (bench.*work)();
    (bench.*work)();
    std::vector<double> ours;
    std::vector<double> cpu;
    std::vector<double> walks;
    for ([[maybe_unused]] auto _ : state) {
        const Cost cost = CostOf([&] { (bench.*work)(); });
        ours.push_back(cost.Wall);
        cpu.push_back(cost.Cpu);
        walks.push_back(CostOf([] { benchmark::DoNotOptimize(WalkTables()); }).Cpu);
        state.SetIterationTime(cost.Wall / 1000);
    }
    state.counters["ours_ms"] = Median(ours);
    state.counters["cpu_ms"] = Median(cpu);
    state.counters["worst_ms"] = *std::max_element(ours.begin(), ours.end());
    state.counters["worst_cpu_ms"] = *std::max_element(cpu.begin(), cpu.end());
    state.counters["walk_ms"] = Median(walks);
    state.counters["ratio"] = Median(cpu) / Median(walks);
}

constexpr int Rounds = 200;
BENCHMARK_CAPTURE(AgainstAWalk, Click, &Bench::Click)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Rebuild, &Bench::Rebuild)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Move, &Bench::Move)->Iterations(Rounds)->UseManualTime();

} // namespace
} // namespace dravik

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    dravik::UseLightLook();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
