#include "rules/Waivers.h"

#include "league/Positions.h"
#include "league/Reporting.h"
#include "rules/Overall.h"

namespace dravik {

namespace {

template <class Person>
bool NeedsWaivers(const Tables& league, Voice& says, const Person& person, int position, int index)
{
    const League& rules = league.LeagueData;
    return person.ProGames >= rules.WaiverMinGames && person.Age > rules.WaiverExemptAge &&
           CalculateOverall(league, says, position, index) <= rules.FarmMaxOverall;
}

} // namespace

bool IsDeadlineInForce(const League& rules) { return static_cast<bool>(rules.TradeDeadlineInForce); }

bool DeadlineHasPassed(const League& rules) { return rules.TradeDeadlinePassed && IsDeadlineInForce(rules); }

bool WaiverCheck(const Tables& league, Voice& says, int id)
{
    bool needed = false;
    Reporting(says, " in WaiverCheck!", [&] {
        if (!league.LeagueData.WaiverAllowed || league.LeagueData.TradeDeadlineInForce)
            return;
        if (id > GoalieOffset) {
            const int index = id - GoalieOffset;
            needed = NeedsWaivers(league, says, league.Goalies[index], position::Goalie, index);
        } else {
            const Player& player = league.Players[id];
            needed = NeedsWaivers(league, says, player, static_cast<int>(player.Position), id);
        }
    });
    return needed;
}

void MarkWaived(Tables& league, Voice& says, int team, int id)
{
    constexpr int waived = 99;
    if (!TeamTable::Has(team) || id < 1 || id > GoalieOffset + GoalieTable::last) {
        says.ShowIntegrityFailure();
        return;
    }
    if (id <= GoalieOffset)
        league.Players[id].Suspension = waived;
    else
        league.Goalies[id - GoalieOffset].Suspension = waived;
}

} // namespace dravik
