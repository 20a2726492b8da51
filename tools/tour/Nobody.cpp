#include "Evening.h"
#include "league/Tables.h"
#include "rules/WipeLines.h"
#include "screens/team/CalendarWindow.h"
#include "screens/team/GraphsWindow.h"
#include "session/Session.h"

#include <QApplication>
#include <QPushButton>

// The team when nobody is left of it, as before a first draft.
namespace dravik::tour {

void Evening::LookAtTeamOfNobody()
{
    const std::unique_ptr<Tables> before = Copy(dravik::OpenLeague);
    for (Player& player : Players)
        if (player.Team == plan.Team)
            player.Team = 0;
    for (Goalie& keeper : Goalies)
        if (keeper.Team == plan.Team)
            keeper.Team = 0;
    for (int day = 1; day <= LineDays; ++day)
        for (const bool isPro : {true, false})
            WipesLines(dravik::OpenLeague, Machine(), plan.Team, day, isPro);

    Choose();
    EnterOffice();
    Photograph(Window::Team, "team-nobody");
    Team().findChild<QPushButton*>("cmdCalendar")->click();
    auto* calendar = Team().findChild<CalendarWindow*>();
    Require(calendar != nullptr && calendar->isVisible(), "the calendar of an empty team comes up");
    Require(camera.Photograph(*calendar, "calendar-nobody", calendar->size()), "pictures of it are written");
    calendar->close();
    Team().findChild<QPushButton*>("cmdGraphs")->click();
    auto* graphs = Team().findChild<GraphsWindow*>();
    Require(graphs != nullptr && graphs->isVisible(), "the graphs of an empty team come up");
    for (int page = 0; page < graphs->tabPages->count(); ++page) {
        graphs->tabPages->setCurrentIndex(page);
        Require(camera.Photograph(*graphs, QString("graphs-nobody-%1").arg(page + 1), graphs->size()),
                "pictures of them are written");
    }
    graphs->close();
    NoComplaints("the team of nobody is looked at");
    LeaveOffice();
    dravik::OpenLeague = *before;
}

} // namespace dravik::tour
