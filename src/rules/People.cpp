#include "rules/People.h"

namespace dravik {

namespace {

// Kept apart from what the callers do with a person, so that the walk over thousands of others stays a tight loop.
template <class Table>
int Next(const Table& people, int team, int after)
{
    for (int index = after + 1; index <= Table::last; ++index)
        if (BelongsTo(people[index], team))
            return index;
    return 0;
}

} // namespace

int NextOfTeam(const PlayerTable& people, int team, int after) { return Next(people, team, after); }
int NextOfTeam(const GoalieTable& people, int team, int after) { return Next(people, team, after); }

TeamPeople PeopleOf(const Tables& league, int team)
{
    TeamPeople people;
    EachOfTeam(league.Players, team, [&](const Player& /*player*/, int index) { people.Players.push_back(index); });
    EachOfTeam(league.Goalies, team, [&](const Goalie& /*goalie*/, int index) { people.Goalies.push_back(index); });
    return people;
}

} // namespace dravik
