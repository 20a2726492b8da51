// What the lines screen costs on a full league: a press on a slot, a whole drag from the list onto it, a pick by keys, a swap,
// the repair of all days, a change of day and a piece of advice followed, each with both judgements of the lines, the advice on
// them and the painting, the sheet of the whole line-up, opened and pressed, and the card of a person, painted, against one
// bare walk over the tables inside one run. The counter "ratio" is the processor's time for ours divided by that for the walk;
// "cpu_ms" is to stay below one frame (16 ms).
//
//     lines_bench

#include "bench/AgainstAWalk.h"
#include "bench/FullLeague.h"
#include "bench/ScreenBench.h"
#include "screens/lines/frmLine.h"
#include "screens/lines/LineSheet.h"
#include "screens/panels/PersonCards.h"
#include "screens/RosterEntry.h"
#include "support/LineFindings.h"
#include "tests/screens/Dragging.h"

#include <benchmark/benchmark.h>
#include <QTest>
#include <vector>

namespace dravik {
namespace {

constexpr int Own = 5;

// The team at hand has a full roster at the far end of the tables, complete lines on all days and ten games to come at the
// far end of the calendar.
TeamMaker PutTeam()
{
    constexpr int ownSkaters = 18;
    constexpr int ownGoalies = 2;
    FillLeague(PlayerTable::last - ownSkaters, GoalieTable::last - ownGoalies);
    TeamMaker team(Own);
    team.DressesFullRoster();
    for (Lines& day : Teams[Own].ProLines)
        FillDay(day, team);
    for (long long row = 1; row <= ScheduleTable::last; ++row) {
        ScheduleRow& game = GameSchedule[row];
        game.GameDay = 1 + row / 30;
        game.ProGame = true;
        game.ProHome = row > ScheduleTable::last - 10 ? Own : 6 + row % 15;
        game.ProAway = 21 + row % 15;
    }
    return team;
}

class Bench : ScreenBench {
public:
    Bench()
    {
        const TeamMaker team = PutTeam();
        CurrentTeam = Own;
        Open(Window::Line);
        for (const int id : {team.Skaters[0], team.Skaters[3]}) // two centers, in turn
            rows.push_back(Screen().lstPlayer->RowOf(EntryNumber(id, position::Center)));
        Demand(Screen().vscDay->maximum() == DayStrip::Days);
        Demand(Screen().lblComplete->text() == "Lines are Complete");
        Pick();
    }

    // A press of the mouse on a slot, painted.
    void Press()
    {
        QTest::mouseClick(Slot(), Qt::LeftButton);
        Screen().grab();
        Demand(Standing() == SelectedPlayer);
    }
    // Another person dragged from the list onto a slot, painted.
    void Drag()
    {
        DragEntry(Screen().lstPlayer, rows[turn++ % rows.size()], Slot());
        Screen().grab();
        Demand(Standing() == SelectedPlayer);
    }
    // The picker opened at a slot, a letter typed and somebody placed, painted after each: three keys.
    void PickByKeys()
    {
        SlotLabel* slot = Slot();
        slot->setFocus();
        QTest::keyClick(slot, Qt::Key_F2);
        Screen().grab();
        QTest::keyClick(Screen().focusWidget(), Qt::Key_S);
        Screen().grab();
        QTest::keyClick(Screen().focusWidget(), Qt::Key_Return);
        Screen().grab();
        Demand(Standing() != 0 && slot->hasFocus());
    }
    // Two neighbours who change places, painted: the last of three keys does it.
    void Swap()
    {
        const long long before = Standing();
        SlotLabel* slot = Slot();
        slot->setFocus();
        QTest::keyClick(slot, Qt::Key_Space, Qt::ControlModifier);
        QTest::keyClick(slot, Qt::Key_Right);
        QTest::keyClick(Screen().focusWidget(), Qt::Key_Space, Qt::ControlModifier);
        Screen().grab();
        Demand(Standing() != before);
    }
    // All days repaired, of which nothing is left to mend, and shown.
    void RepairAll()
    {
        Screen().cmdRepairAll->click();
        Screen().grab();
        Demand(Screen().lblComplete->text() == "Lines are Complete");
    }
    // A click on the next day, painted.
    void Day()
    {
        DayStrip* days = Screen().vscDay;
        const int next = 1 + days->value() % DayStrip::Days;
        QTest::mouseClick(days, Qt::LeftButton, {}, days->CellOf(next).center());
        Screen().grab();
        Demand(Screen().Day() == next);
    }

    // The sheet of the whole line-up, opened, or a press on a slot of it: both windows painted.
    void Sheet()
    {
        if (Screen().Sheet != nullptr)
            Screen().Sheet->close();
        Screen().cmdSheet->click();
        Screen().Sheet->grab();
        Demand(Screen().Sheet->isVisible());
    }
    void PressOnSheet()
    {
        if (Screen().Sheet == nullptr)
            Screen().cmdSheet->click();
        Pick();
        QTest::mouseClick(Screen().TabLine->SlotAt(LineField::NormalForward, 1, 1).OnSheet, Qt::LeftButton);
        Screen().grab();
        Screen().Sheet->grab();
        Demand(Standing() == SelectedPlayer);
    }

    // Ctrl+I on the entry picked, and the card painted over the screen; Escape.
    void Card()
    {
        QTest::keyClick(Screen().lstPlayer, Qt::Key_I, Qt::ControlModifier);
        Screen().grab();
        Demand(Screen().findChild<PersonCards*>()->Shown() != nullptr);
        QTest::keyClick(Screen().lstPlayer, Qt::Key_Escape);
        Demand(Screen().findChild<PersonCards*>()->Shown() == nullptr);
    }
    // The starter is tired: the day judged, and a press on the command that starts his backup, painted.
    void Advise()
    {
        Lines& lines = Teams[Own].ProLines[Screen().Day()];
        const long long backup = lines.BackupGoalie;
        Goalies[lines.StartGoalie].Condition = 96;
        Goalies[backup].Condition = 100;
        Screen().Check();
        QTest::mouseClick(Screen().findChild<QPushButton*>("cmdAdvice(0)"), Qt::LeftButton);
        Screen().grab();
        Demand(lines.StartGoalie == backup);
    }

private:
    frmLine& Screen() { return On<frmLine>(Window::Line); }
    SlotLabel* Slot() { return Screen().TabLine->SlotAt(LineField::NormalForward, 1, 1).Label; }
    long long Standing() { return Teams[Own].ProLines[Screen().Day()].NormalForward(1, 1); }
    void Pick()
    {
        PickList* list = Screen().lstPlayer;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(rows[0])).center());
    }

    std::vector<int> rows;
    std::size_t turn = 0;
};

void AgainstAWalk(benchmark::State& state, void (Bench::*work)())
{
    MeasureAgainstAWalk(
        state, TheBench<Bench>(), work, [](const auto& person) { return person.Team == Own; }, 20);
}

constexpr int Rounds = 200;
// First, while all days are complete.
BENCHMARK_CAPTURE(AgainstAWalk, RepairAll, &Bench::RepairAll)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Press, &Bench::Press)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Drag, &Bench::Drag)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, PickByKeys, &Bench::PickByKeys)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Swap, &Bench::Swap)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Sheet, &Bench::Sheet)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, PressOnSheet, &Bench::PressOnSheet)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Card, &Bench::Card)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Day, &Bench::Day)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Advise, &Bench::Advise)->Iterations(Rounds)->UseManualTime();

} // namespace
} // namespace dravik

int main(int argc, char** argv) { return dravik::RunScreenBenchmarks<dravik::Bench>(argc, argv); }
