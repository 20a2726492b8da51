// What the long lists of the market cost in a league in which everybody can be made an offer, each against one bare walk over
// the tables inside one run: the counter "ratio" is the time of ours divided by the time of the walk. Opening and filtering
// are to stay below 100 ms, a search and a step in the list below one frame (16 ms); "ours_ms" shows it.
//
//     market_bench

#include "screens/frmFreeAgentClient.h"
#include "screens/frmMain.h"
#include "screens/platform/Palettes.h"
#include "screens/Stage.h"
#include "support/SmallLeague.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <functional>
#include <QApplication>
#include <QTest>
#include <vector>

namespace dravik {
namespace {

constexpr int Own = 5;

// Every slot of the tables is in use by somebody without a contract, a third of them restricted.
void FillLeague()
{
    ResetClientVariables();
    MessagesAllowed = true;
    TeamMaker made(Own);
    SetPlainWeights();
    League& league = LeagueData;
    league.RFAAge = 18;
    league.UFAAge = 31;
    league.MinSalary = 500000;
    league.MaxSalary = 10000000;
    league.MaxOffers = 1000;
    league.OfferRuleFlag = true;
    league.ShowOverall = true;
    league.ShowAllRatings = true;
    PlayerStatCount = 15;
    GoalieStatCount = 13;
    for (int id = 1; id <= PlayerTable::last; ++id) {
        Player& player = PutSkater(id, id % 30, 1 + id % 4, status::Farm, 40 + id % 50);
        player.Contract = 0;
        player.Age = 20 + id % 17;
    }
    for (int id = 1; id <= GoalieTable::last; ++id) {
        Goalie& keeper = PutGoalie(id, id % 30, status::Farm, 40 + id % 50);
        keeper.Contract = 0;
        keeper.Age = 20 + id % 17;
    }
}

class Bench {
public:
    Bench()
    {
        UseMachine(machine);
        stage.Start();
        FillLeague();
        CurrentTeam = Own;
        OpenOffers();
        // The last goalie can be listed and not be shown, so the search goes for the one before him.
        for (int id = 3; id <= OfferTable::last; id += 500) {
            FreeAgentOffer& offer = Offers().FreeAgentOffers[id];
            offer.Id = id;
            offer.Salary = 750000;
            offer.Duration = 2;
        }
        if (Offers().lstPlayers->count() != OfferTable::last)
            std::abort();
    }

    frmFreeAgentClient& Offers() { return *static_cast<frmFreeAgentClient*>(stage.Find("FreeAgent")); }

    // The screen filled and painted.
    void OpenOffers()
    {
        stage.Open("FreeAgent", *stage.Find("Main"));
        QApplication::processEvents();
        stage.Find("FreeAgent")->grab();
    }
    // The tick set or taken away, painted.
    void Filter()
    {
        Offers().chkShowPlayerWithOffer->toggle();
        Offers().grab();
    }
    // A search that ends with the last entry but one, painted; the next one ends with the first.
    void Search()
    {
        machine.Type(turn++ % 2 == 0 ? "GOALIE 999" : "");
        Offers().cmdSearch->click();
        Offers().grab();
    }
    // A search that finds nobody.
    void SearchInVain()
    {
        machine.Type("nobody is called so");
        Offers().cmdSearch->click();
    }
    // A letter that leads to a goalie, and the next to a skater, painted.
    void TypeAhead()
    {
        PickList* list = Offers().lstPlayers;
        list->keyboardSearch(QString());
        QTest::keyClick(list, turn++ % 2 == 0 ? 'g' : 's');
        Offers().grab();
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

// Looks at every record of both tables once, as whoever wants to know the people without a contract must.
long long WalkTables()
{
    long long found = 0;
    for (const Player& player : Players)
        found += player.InUse && player.Contract == 0 ? 1 : 0;
    for (const Goalie& keeper : Goalies)
        found += keeper.InUse && keeper.Contract == 0 ? 1 : 0;
    return found;
}

double Milliseconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
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
    if (WalkTables() != OfferTable::last)
        std::abort();
    (bench.*work)();
    (bench.*work)();
    std::vector<double> ours;
    std::vector<double> walks;
    for ([[maybe_unused]] auto _ : state) {
        ours.push_back(Milliseconds([&] { (bench.*work)(); }));
        walks.push_back(Milliseconds([] { benchmark::DoNotOptimize(WalkTables()); }));
        state.SetIterationTime(ours.back() / 1000);
    }
    state.counters["ours_ms"] = Median(ours);
    state.counters["walk_ms"] = Median(walks);
    state.counters["worst_ms"] = *std::max_element(ours.begin(), ours.end());
    state.counters["ratio"] = Median(ours) / Median(walks);
}

constexpr int Rounds = 40;
BENCHMARK_CAPTURE(AgainstAWalk, OpenOffers, &Bench::OpenOffers)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, FilterOffers, &Bench::Filter)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, SearchOffers, &Bench::Search)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, SearchOffersInVain, &Bench::SearchInVain)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, TypeAheadInOffers, &Bench::TypeAhead)->Iterations(Rounds)->UseManualTime();

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
