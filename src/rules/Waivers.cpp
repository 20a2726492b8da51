#include "league/ClientVariable.h"
#include "league/Reporting.h"
#include "rules/Function.h"

namespace dravik {

namespace {

template <class Person>
bool NeedsWaivers(const Person& person, int position, int index)
{
    const League& league = LeagueData;
    return person.ProGames >= league.WaiverMinGames && person.Age > league.WaiverExemptAge &&
           CalculateOverall(position, index) <= league.FarmMaxOverall;
}

} // namespace

bool WaiverCheck(int id)
{
    bool needed = false;
    Reporting(" in WaiverCheck!", [&] {
        if (!LeagueData.WaiverAllowed || LeagueData.TradeDeadlineInForce)
            return;
        if (id > GoalieOffset) {
            const int index = id - GoalieOffset;
            needed = NeedsWaivers(Goalies[index], position::Goalie, index);
        } else {
            const Player& player = Players[id];
            needed = NeedsWaivers(player, static_cast<int>(player.Position), id);
        }
    });
    return needed;
}

} // namespace dravik
