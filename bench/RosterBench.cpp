// What the roster screen costs on a full league, each against one bare walk over the tables inside one run: the counter
// "ratio" is the processor's time for ours divided by that for the walk. "cpu_ms" is to stay below one frame (16 ms), and
// so is "ours_ms", the time on the clock, where nobody else keeps the machine busy.
//
//     roster_bench

#include "bench/AgainstAWalk.h"
#include "screens/frmMain.h"
#include "screens/frmRoster.h"
#include "screens/platform/Palettes.h"
#include "screens/Stage.h"
#include "support/SmallLeague.h"

#include <benchmark/benchmark.h>
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

void AgainstAWalk(benchmark::State& state, void (Bench::*work)())
{
    MeasureAgainstAWalk(state, TheBench(), work, Own, 60);
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
