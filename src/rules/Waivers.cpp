#include "rules/Waivers.h"

#include "league/PersonId.h"
#include "machine/Reporting.h"
#include "rules/FarmLimits.h"
#include "rules/Overall.h"

namespace dravik {

namespace {

template <class Person>
bool NeedsWaivers(const Tables& league, Voice& says, const Person& person, PersonId who)
{
    const League& rules = league.LeagueData;
    return person.ProGames >= rules.WaiverMinGames && person.Age > rules.WaiverExemptAge &&
           !IsTooGoodForFarm(rules, CalculateOverall(league, says, who));
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
        const PersonId who = PersonOf(id);
        needed = OnPerson(league, who, [&](const auto& person) { return NeedsWaivers(league, says, person, who); });
    });
    return needed;
}

void MarkWaived(Tables& league, Voice& says, int team, int id)
{
    constexpr int waived = 99;
    const PersonId who = PersonOf(id);
    if (!TeamTable::Has(team) || !who.HasSlot() || who.Slot == 0) {
        says.ShowIntegrityFailure();
        return;
    }
    OnPerson(league, who, [](auto& person) { person.Suspension = waived; });
}

} // namespace dravik
