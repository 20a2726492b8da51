#include "Evening.h"
#include "rules/People.h"
#include "screens/main/frmCompare.h"
#include "screens/main/frmMain.h"
#include "session/OpenChanges.h"
#include "session/Session.h"

#include <QApplication>
#include <QDir>
#include <QFile>

// What is told of a league that has played on since it was opened last.
namespace dravik::tour {

namespace {

// Some days before: people were fit, elsewhere, better or worse than they are now.
void TurnBack(Tables& league, int team)
{
    constexpr double days = 3;
    league.LeagueData.FileDate = league.LeagueData.FileDate - days;
    league.Teams[team].Cash += 267235;
    league.Teams[team].LinesLoadCount -= 1;
    int turn = 0;
    for (int slot = 1; slot <= PlayerTable::last; ++slot) {
        Player& person = league.Players[slot];
        if (!person.InUse || !TeamTable::Has(person.Team) || ++turn % 7 != 0)
            continue;
        if (!IsHealthy(person))
            person.Condition = 100;
        else if (turn % 5 == 0)
            person.Condition = 80;
        else if (turn % 3 == 0)
            person.Stats[skater::SC] += turn % 2 == 0 ? 2 : -2;
        else if (turn % 11 == 0)
            person.Team = person.Team % 30 + 1;
        else if (turn % 13 == 0)
            person.Suspension = 2;
    }
}

} // namespace

void Evening::ShowChanges()
{
    const auto earlier = Copy(dravik::OpenLeague);
    TurnBack(*earlier, plan.Team);

    // The file as it is beside one that was turned back.
    const auto now = Copy(dravik::OpenLeague);
    dravik::OpenLeague = *earlier;
    answers.Choose(plan.League);
    Main().findChild<QAction*>("mnuCompare")->trigger();
    NoComplaints("the file is compared");
    auto* compare = static_cast<frmCompare*>(stage.Find(Window::Compare));
    Require(compare != nullptr && compare->changes->List()->count() > 0, "there are differences");
    Photograph(Window::Compare, "compare");
    Leave(Window::Compare, Main(), compare->cmdExit);
    dravik::OpenLeague = *now;

    // The program remembers the earlier one, and the file is opened anew.
    QDir leagues(plan.Out + "/leagues");
    const QStringList kept = leagues.entryList(QDir::Files);
    Require(kept.size() == 1, "the league is remembered");
    QFile digest(leagues.filePath(kept.front()));
    const std::string bytes = WriteDigest(DigestOf(*earlier));
    Require(digest.open(QFile::WriteOnly) && digest.write(bytes.data(), static_cast<qint64>(bytes.size())) > 0,
            "the earlier league is remembered in its place");
    digest.close();
    answers.Choose(plan.League);
    Main().mnuOpen->trigger();
    NoComplaints("the league opens anew");
    Require(Main().findChild<ChangeList*>("Changes")->isVisible(), "what changed is told");
    Choose();
    Photograph(Window::Main, "main-changes");
}

} // namespace dravik::tour
