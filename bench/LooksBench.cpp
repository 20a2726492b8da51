// What the windows of figures cost on a full league: the calendar and the graphs shown anew and painted, a goalie chosen in the
// calendar beside the lines screen, which shows it too, what the offers come to, and somebody chosen on the roster with what his
// release would mean, against one bare walk over the tables inside one run. "cpu_ms" is to stay below one frame (16 ms).
//
//     looks_bench

#include "bench/AgainstAWalk.h"
#include "bench/FullLeague.h"
#include "bench/ScreenBench.h"
#include "screens/lines/frmLine.h"
#include "screens/market/frmFreeAgentClient.h"
#include "screens/market/WhatIfWindow.h"
#include "screens/roster/frmRoster.h"
#include "screens/team/CalendarWindow.h"
#include "screens/team/GraphsWindow.h"
#include "session/OpenMarket.h"
#include "support/LineFindings.h"

#include <benchmark/benchmark.h>
#include <QTest>

namespace dravik {
namespace {

constexpr int Own = 5;
constexpr int GamesLeft = 82;
constexpr int Offered = 40; // people without a contract

// The team at hand stands at the far end of the tables, and its games at the far end of the calendar.
void PutTeam()
{
    constexpr int ownSkaters = 18;
    constexpr int ownGoalies = 2;
    FillLeague(PlayerTable::last - ownSkaters, GoalieTable::last - ownGoalies);
    LeagueData.ShowOverall = true;
    LeagueData.SalaryCapMode = 1;
    LeagueData.SalaryCap = 500000000;
    LeagueData.OfferRuleFlag = true;
    TeamMaker team(Own);
    team.DressesFullRoster();
    for (Lines& day : Teams[Own].ProLines)
        FillDay(day, team);
    for (long long row = 1; row <= ScheduleTable::last; ++row) {
        ScheduleRow& game = GameSchedule[row];
        game.GameDay = 1 + row / 30;
        game.ProGame = true;
        game.ProHome = row > ScheduleTable::last - GamesLeft ? Own : 6 + row % 15;
        game.ProAway = 21 + row % 15;
    }
    for (int number = 6; number <= 35; ++number)
        Teams[number].InUse = true;
    for (int id = 1; id <= Offered; ++id)
        Players[id].Contract = 0;
}

void MakeOffers()
{
    for (int id = 1; id <= Offered; ++id) {
        FreeAgentOffer& offer = OpenMarket().Offers[id];
        offer.Id = id;
        offer.Salary = 750000;
        offer.Duration = 2;
    }
}

class Bench : ScreenBench {
public:
    Bench()
    {
        PutTeam();
        CurrentTeam = Own;
    }

    void Calendar()
    {
        Look<CalendarWindow>(Qt::Key_C).ShowAnew();
        Look<CalendarWindow>(Qt::Key_C).grab();
        Demand(Look<CalendarWindow>(Qt::Key_C).tblSeason->rowCount() == GamesLeft);
    }
    void ChooseGoalie()
    {
        QComboBox* starter = Look<CalendarWindow>(Qt::Key_C).StarterOf(1);
        const long long before = Teams[Own].ProLines[1].StartGoalie;
        QTest::keyClick(starter, starter->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
        QApplication::processEvents();
        Look<CalendarWindow>(Qt::Key_C).grab();
        Demand(Teams[Own].ProLines[1].StartGoalie != before);
    }
    void Graphs()
    {
        Look<GraphsWindow>(Qt::Key_G).ShowAnew();
        Look<GraphsWindow>(Qt::Key_G).grab();
        Demand(Look<GraphsWindow>(Qt::Key_G).Ranks.tblFigures->rowCount() == 4);
    }
    void WhatIf()
    {
        auto& offers = Shown<frmFreeAgentClient>(Window::FreeAgent);
        if (offers.WhatIf == nullptr) {
            MakeOffers(); // the screen begins without any
            offers.cmdWhatIf->click();
        }
        offers.WhatIf->ShowAnew();
        offers.WhatIf->grab();
        Demand(offers.WhatIf->lblOffers->text().endsWith(QString::number(Offered)));
    }
    void Release()
    {
        auto& roster = Shown<frmRoster>(Window::Roster);
        PickList* list = roster.lstPlayer[status::Pro];
        list->setCurrentRow(turn++ % list->count(), QItemSelectionModel::ClearAndSelect);
        roster.grab();
        Demand(!roster.lblRelease->text().isEmpty());
    }

private:
    template <class Form>
    Form& Shown(Window window)
    {
        if (stage.Find(window) == nullptr)
            Open(window);
        return On<Form>(window);
    }
    // The look beside the lines screen, opened where it is not.
    template <class Look_>
    Look_& Look(Qt::Key key)
    {
        auto& line = Shown<frmLine>(Window::Line);
        if (line.template findChild<Look_*>() == nullptr) {
            line.activateWindow();
            QTest::keyClick(&line, key, Qt::ControlModifier | Qt::ShiftModifier);
            QApplication::processEvents();
        }
        auto* look = line.template findChild<Look_*>();
        Demand(look != nullptr);
        return *look;
    }

    int turn = 0;
};

void AgainstAWalk(benchmark::State& state, void (Bench::*work)())
{
    MeasureAgainstAWalk(
        state, TheBench<Bench>(), work, [](const auto& person) { return person.Team == Own; }, 20);
}

constexpr int Rounds = 60;
BENCHMARK_CAPTURE(AgainstAWalk, Calendar, &Bench::Calendar)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, ChooseGoalie, &Bench::ChooseGoalie)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Graphs, &Bench::Graphs)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, WhatIf, &Bench::WhatIf)->Iterations(Rounds)->UseManualTime();
BENCHMARK_CAPTURE(AgainstAWalk, Release, &Bench::Release)->Iterations(Rounds)->UseManualTime();

} // namespace
} // namespace dravik

int main(int argc, char** argv) { return dravik::RunScreenBenchmarks<dravik::Bench>(argc, argv); }
