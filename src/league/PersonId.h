#pragma once

#include "league/Positions.h"
#include "league/Tables.h"

#include <type_traits>

namespace dravik {

// Who somebody is: his kind, and his slot in the table of his kind. That a goalie is stored and told as his slot + 10000
// where both kinds share one number is `CommonId`.
struct PersonId {
    bool IsGoalie = false;
    int Slot = 0;

    [[nodiscard]] constexpr int CommonId() const { return IsGoalie ? Slot + GoalieOffset : Slot; }
    // Whether the table of his kind has that slot.
    [[nodiscard]] constexpr bool HasSlot() const { return IsGoalie ? GoalieTable::Has(Slot) : PlayerTable::Has(Slot); }
    bool operator==(const PersonId&) const = default;
};

// Whom a common number means: up to 10000 the skater in that slot, above it the goalie in the slot 10000 below. Any number
// means somebody; whether there is such a slot is asked by whoever looks into it.
constexpr PersonId PersonOf(int commonId)
{
    const bool isGoalie = commonId > GoalieOffset;
    return {.IsGoalie = isGoalie, .Slot = isGoalie ? commonId - GoalieOffset : commonId};
}

// Who stands in a slot of the table of `Person`, a `Player` or a `Goalie`.
template <class Person>
constexpr PersonId PersonIn(int slot)
{
    return {.IsGoalie = std::is_same_v<std::remove_cv_t<Person>, Goalie>, .Slot = slot};
}

// The common number that stands in somebody's own record; it is that of his slot unless the file is damaged.
template <class Person>
int CommonNumberOf(const Person& person)
{
    return PersonIn<Person>(static_cast<int>(person.Number)).CommonId();
}

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
