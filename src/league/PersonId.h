#pragma once

#include "league/Positions.h"
#include "league/Tables.h"

namespace dravik {

// Who somebody is: his kind, and his slot in the table of his kind. That a goalie is stored and told as his slot + 10000
// where both kinds share one number is `CommonId`.
struct PersonId {
    bool IsGoalie = false;
    int Slot = 0;

    [[nodiscard]] int CommonId() const { return IsGoalie ? Slot + GoalieOffset : Slot; }
    bool operator==(const PersonId&) const = default;
};

// What `visit(person)` makes of the record of a person. A slot outside his table fails with 9.
template <class League, class Visit>
decltype(auto) OnPerson(League& league, PersonId who, Visit&& visit)
{
    return who.IsGoalie ? visit(league.Goalies[who.Slot]) : visit(league.Players[who.Slot]);
}

// His entry in the list of changes.
inline RosterChange& ChangeOf(Tables& league, PersonId who)
{
    return who.IsGoalie ? league.RosterChangesGoalie[who.Slot] : league.RosterChanges[who.Slot];
}

} // namespace dravik
