#pragma once

#include "league/Tables.h"

#include <vector>

namespace dravik {

// A person belongs to a team when his record is in use and names the team.
template <class Person>
bool BelongsTo(const Person& person, int team)
{
    return person.Team == team && person.InUse;
}

// The first person of the table behind slot `after` who belongs to `team`; 0 when there is none.
int NextOfTeam(const PlayerTable& people, int team, int after);
int NextOfTeam(const GoalieTable& people, int team, int after);

// Calls `visit(person, index)` for every person of `people` (from slot 1 on) who belongs to `team`, in index order.
template <class People, class Visit>
void EachOfTeam(People& people, int team, Visit&& visit)
{
    for (int index = NextOfTeam(people, team, 0); index != 0; index = NextOfTeam(people, team, index))
        visit(people[index], index);
}

// The slots of the people of one team, each table's in index order, for who goes through them more than once.
struct TeamPeople {
    std::vector<int> Players;
    std::vector<int> Goalies;
};
TeamPeople PeopleOf(const Tables& league, int team);

// Healthy enough to play.
inline constexpr int HealthyCondition = 95;
template <class Person>
bool IsHealthy(const Person& person)
{
    return person.Condition >= HealthyCondition;
}

// Healthy and not suspended: he may be dressed.
template <class Person>
bool IsDressable(const Person& person)
{
    return IsHealthy(person) && person.Suspension == 0;
}

// Dressable and under contract.
template <class Person>
bool IsFit(const Person& person)
{
    return IsDressable(person) && person.Contract > 0;
}

} // namespace dravik
