// What the draft screen costs when all 11000 skaters and goalies are free agents, each against one bare walk over the tables
// inside one run: the counter "ratio" is the processor's time for ours divided by that for the walk. Opening and filtering
// are to stay below 100 ms, searching and a step of the full ranking of 1001 below one frame (16 ms). All of it painted.
//
//     draft_bench

#include "bench/AgainstAWalk.h"
#include "bench/FullLeague.h"
#include "bench/ScreenBench.h"
#include "screens/market/frmDraft.h"
#include "session/OpenMarket.h"

#include <benchmark/benchmark.h>

namespace dravik {
namespace {

constexpr int Own = 5;

void PutFreeAgents()
{
    FillLeague();
    const TeamMaker made(Own);
    LeagueData.FantasyDraft = true;
    ChangeEverybody([](auto& person, int /*id*/) {
        person.Team = 0;
        person.Status = status::Farm;
    });
}

class Bench : ScreenBench {
public:
    Bench()
    {
        PutFreeAgents();
        CurrentTeam = Own;
        OpenDraft();
        for (int rank = 0; rank <= DraftRanking::last; ++rank)
            OpenMarket().Ranking[rank] = rank + 1;
        Draft().PlaceOffer();
    }

    void OpenDraft()
    {
        Open(Window::Draft);
        Demand(Draft().lstPlayers->count() == 11000);
    }
    // Every fourth skater leaves the list, and comes back at the next turn.
    void Filter()
    {
        QCheckBox* filter = Draft().chkPosition[position::Defense];
        filter->toggle();
        Paint();
        Demand(Draft().lstPlayers->count() == (filter->isChecked() ? 11000 : 8500));
    }
    // The last entry is found.
    void Search()
    {
        machine.Type("goalie 1000");
        Draft().cmdSearch->click();
        Paint();
        Demand(Draft().lstPlayers->currentRow() == Draft().lstPlayers->count() - 1);
    }
    // The last of the ranking goes up by one and down again in turn.
    void Rank()
    {
        RankList* list = Draft().lstDraftList;
        list->setCurrentRow(turn++ % 2 == 0 ? 1000 : 999);
        (turn % 2 == 0 ? Draft().cmdDown : Draft().cmdUp)->click();
        Paint();
        Demand(list->currentRow() == (turn % 2 == 0 ? 1000 : 999));
    }

private:
    frmDraft& Draft() { return On<frmDraft>(Window::Draft); }
    void Paint()
    {
        QApplication::processEvents();
        Draft().grab();
    }

    int turn = 0;
};

void AgainstAWalk(benchmark::State& state, void (Bench::*work)())
{
    MeasureAgainstAWalk(
        state, TheBench<Bench>(), work, [](const auto& person) { return person.Team == 0; }, 11000);
}

constexpr int Rounds = 40;
BENCHMARK_CAPTURE(AgainstAWalk, Filter, &Bench::Filter)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Search, &Bench::Search)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Rank, &Bench::Rank)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Open, &Bench::OpenDraft)->Iterations(Rounds)->UseManualTime();

} // namespace
} // namespace dravik

int main(int argc, char** argv) { return dravik::RunScreenBenchmarks<dravik::Bench>(argc, argv); }
