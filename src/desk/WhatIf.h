#pragma once

#include "league/FreeAgentOffer.h"
#include "league/PersonId.h"
#include "rules/SalaryCap.h"

#include <array>

// What a step would come to that is not taken: the rules' own figures on a copy of the league. Nothing is asked, told or
// changed.
namespace dravik {

// How many people a team has in each position: centers, left wings, right wings, defensemen, goalies.
using PeopleByPosition = std::array<int, position::Goalie>;
// Those of `team` (any number), wherever they stand. A skater without a position counts nowhere.
PeopleByPosition CountPeople(const Tables& league, int team);

// Where a team stands: its people, its payroll against the cap, its money in whole units, and what one game costs it.
struct TeamStanding {
    PeopleByPosition People{};
    CapStanding Payroll;
    long long Money = 0;
    long long PerGame = 0;

    bool operator==(const TeamStanding&) const = default;
};
// That of `team` (1..100; anything else fails with 9). What does not fit 32 bits fails with 6.
TeamStanding StandingOf(const Tables& league, int team);

// A team as it is, and as it would be if everybody took what he is offered.
struct AllTaken {
    int Offers = 0;
    TeamStanding Now;
    TeamStanding Then;
};
// Takes the offers that `team` (1..100) would save: whoever is offered something belongs to it at that salary and for those
// years, and its money pays the bonuses. The team's own people stand where they stood, others among the scratches. Fails like
// StandingOf.
AllTaken WithAllOffersTaken(const Tables& league, int team, const OfferTable& offers);

// What a release would mean: what is left of the contract, which is paid in part or whole as the league decides, and the payroll
// before and after, as long as nothing was paid for it.
struct Released {
    long long RestOfContract = 0;
    CapStanding Before;
    CapStanding After;
};
// That of a person of `team` (1..100). A slot outside his table fails with 9; what does not fit 32 bits, with 6.
Released WithRelease(const Tables& league, int team, PersonId who);

} // namespace dravik
