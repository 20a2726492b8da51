#include "rules/LineEligibility.h"

namespace dravik {

bool IsRefusedInLines(const Tables& league, int team, Side side, PersonId who)
{
    if (who.Slot == 0 || !AreLinesJudged(league.LeagueData, side))
        return false;
    if (!who.HasSlot())
        return true;
    return OnPerson(league, who, [&](const auto& person) { return FaultInLines(person, team, side).has_value(); });
}

} // namespace dravik
