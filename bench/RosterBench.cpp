// What the roster screen costs on a full league, each against one bare walk over the tables inside one run: the counter
// "ratio" is the processor's time for ours divided by that for the walk. "cpu_ms" is to stay below one frame (16 ms), and
// so is "ours_ms", the time on the clock, where nobody else keeps the machine busy.
//
//     roster_bench

#include "bench/AgainstAWalk.h"
#include "bench/FullLeague.h"
#include "bench/ScreenBench.h"
#include "screens/roster/frmRoster.h"
#include "tests/screens/Dragging.h"

#include <benchmark/benchmark.h>
#include <QTest>

namespace dravik {
namespace {

constexpr int Own = 5;

// Sixty people of the team at hand, spread over the tables.
void PutTeam()
{
    FillLeague();
    const TeamMaker made(Own);
    const auto statusOf = [](int place, int dressed) {
        return place < dressed ? status::Pro : place % 2 == 0 ? status::Scratch : status::Farm;
    };
    for (int place = 0; place < 54; ++place)
        PutSkater(1 + place * 185, Own, 1 + place % 4, statusOf(place, 18), 50 + place % 30);
    for (int place = 0; place < 6; ++place)
        PutGoalie(1 + place * 185, Own, statusOf(place, 2), 60);
}

class Bench : ScreenBench {
public:
    Bench()
    {
        PutTeam();
        CurrentTeam = Own;
        Open(Window::Roster);
    }

    // One click of the mouse, painted.
    void Click()
    {
        PickList* list = Roster().lstPlayer[status::Pro];
        const QModelIndex entry = list->model()->index(turn++ % 5, 0);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(entry).center());
        Roster().grab();
        Demand(list->currentRow() == entry.row());
    }
    // A letter that leads to the next person, painted.
    void Letter()
    {
        PickList* list = Roster().lstPlayer[status::Pro];
        const int before = list->currentRow();
        QTest::keyClick(list, 's');
        Roster().grab();
        Demand(list->currentRow() != before);
    }
    // Everybody listed and judged anew, painted.
    void Rebuild()
    {
        Roster().ShowPlayer(false);
        Roster().grab();
        Demand(Listed() == 60);
    }
    // A dressed person sent to the scratches, or the one who went there back to the pro list, painted.
    void Move()
    {
        const bool isDown = turn++ % 2 == 0;
        PickList* list = Roster().lstPlayer[isDown ? status::Pro : status::Scratch];
        const int before = list->count();
        const QModelIndex entry = list->model()->index(isDown ? 0 : list->count() - 1, 0);
        list->scrollTo(entry);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(entry).center());
        (isDown ? Roster().cmdToScratchesFromPro : Roster().cmdToPro)->click();
        Roster().grab();
        Demand(list->count() == before - 1 && Listed() == 60);
    }

    // Somebody dragged from the pro list to the scratches, or back from there, painted.
    void Drag()
    {
        const bool isDown = turn++ % 2 == 0;
        PickList* list = Roster().lstPlayer[isDown ? status::Pro : status::Scratch];
        const int before = list->count();
        DragEntry(list, isDown ? 0 : list->count() - 1, Roster().lstPlayer[isDown ? status::Scratch : status::Pro]);
        Roster().grab();
        Demand(list->count() == before - 1 && Listed() == 60);
    }
    // Somebody sent from the pro list to the farm by one press with Ctrl, or back by a drag over both: two moves, painted.
    void TwoMoves()
    {
        const bool isDown = turn++ % 2 == 0;
        PickList* list = Roster().lstPlayer[isDown ? status::Pro : status::Farm];
        const int before = list->count();
        const QModelIndex entry = list->model()->index(isDown ? 0 : list->count() - 1, 0);
        list->scrollTo(entry);
        if (isDown) {
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(entry).center());
            QTest::mouseClick(Roster().cmdToScratchesFromPro, Qt::LeftButton, Qt::ControlModifier);
        } else {
            DragEntry(list, entry.row(), Roster().lstPlayer[status::Pro]);
        }
        Roster().grab();
        Demand(list->count() == before - 1 && Listed() == 60);
    }
    // A click where the lists are wide enough for all figures, painted.
    void WideClick()
    {
        Roster().resize(1900, 1000);
        Click();
    }

private:
    frmRoster& Roster() { return On<frmRoster>(Window::Roster); }
    int Listed()
    {
        int listed = 0;
        for (const PickList* list : Roster().lstPlayer)
            listed += list->count();
        return listed;
    }

    int turn = 0;
};

void AgainstAWalk(benchmark::State& state, void (Bench::*work)())
{
    MeasureAgainstAWalk(
        state, TheBench<Bench>(), work, [](const auto& person) { return person.Team == Own; }, 60);
}

constexpr int Rounds = 200;
BENCHMARK_CAPTURE(AgainstAWalk, Click, &Bench::Click)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Letter, &Bench::Letter)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Rebuild, &Bench::Rebuild)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Move, &Bench::Move)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Drag, &Bench::Drag)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, TwoMoves, &Bench::TwoMoves)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, WideClick, &Bench::WideClick)->Iterations(Rounds)->UseManualTime();

} // namespace
} // namespace dravik

int main(int argc, char** argv) { return dravik::RunScreenBenchmarks<dravik::Bench>(argc, argv); }
