// What the draft screen costs when all 11000 skaters and goalies are free agents. Opening and filtering are to stay below
// 100 ms, searching and a step of the full ranking of 1001 below one frame (16 ms). All of it painted.
//
//     draft_bench

#include "screens/frmDraft.h"
#include "screens/platform/Palettes.h"
#include "screens/Stage.h"
#include "support/SmallLeague.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <QApplication>

namespace dravik {
namespace {

void FillLeague()
{
    ResetClientVariables();
    MessagesAllowed = true;
    TeamMaker made(5);
    SetPlainWeights();
    LeagueData.FantasyDraft = true;
    LeagueData.ShowOverall = true;
    for (int id = 1; id <= 10000; ++id)
        PutSkater(id, 0, 1 + id % 4, status::Farm, 40 + id % 50);
    for (int id = 1; id <= 1000; ++id)
        PutGoalie(id, 0, status::Farm, 40 + id % 50);
    CurrentTeam = 5;
}

class Bench {
public:
    Bench()
    {
        UseMachine(machine);
        stage.Start();
        FillLeague();
        Open();
        for (int rank = 0; rank <= DraftRanking::last; ++rank)
            Draft().DraftList[rank] = rank + 1;
        Draft().PlaceOffer();
    }

    void Open()
    {
        stage.Open("Draft", *stage.Find("Main"));
        Paint();
        if (Draft().lstPlayers->count() != 11000)
            std::abort();
    }
    // Every fourth player leaves the list and comes back: two turns of the filter.
    void Filter()
    {
        Draft().chkPosition[position::Defense]->toggle();
        Paint();
    }
    // The last entry is found.
    void Search()
    {
        machine.Type("goalie 1000");
        Draft().cmdSearch->click();
        Paint();
        if (Draft().lstPlayers->currentRow() != Draft().lstPlayers->count() - 1)
            std::abort();
    }
    // The last of the ranking goes up by one and down again in turn.
    void Rank()
    {
        RankList* list = Draft().lstDraftList;
        list->setCurrentRow(turn++ % 2 == 0 ? 1000 : 999);
        (turn % 2 == 0 ? Draft().cmdDown : Draft().cmdUp)->click();
        Paint();
    }

private:
    frmDraft& Draft() { return *static_cast<frmDraft*>(stage.Find("Draft")); }
    void Paint()
    {
        QApplication::processEvents();
        Draft().grab();
    }

    ScriptedPlatform machine;
    Stage stage;
    int turn = 0;
};

Bench& TheBench()
{
    static Bench bench;
    return bench;
}

void Run(benchmark::State& state, void (Bench::*work)())
{
    Bench& bench = TheBench();
    for ([[maybe_unused]] auto _ : state)
        (bench.*work)();
}

BENCHMARK_CAPTURE(Run, Filter, &Bench::Filter)->Unit(benchmark::kMillisecond)->Iterations(40);
BENCHMARK_CAPTURE(Run, Search, &Bench::Search)->Unit(benchmark::kMillisecond)->Iterations(100);
BENCHMARK_CAPTURE(Run, Rank, &Bench::Rank)->Unit(benchmark::kMillisecond)->Iterations(100);
BENCHMARK_CAPTURE(Run, Open, &Bench::Open)->Unit(benchmark::kMillisecond)->Iterations(20);

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
