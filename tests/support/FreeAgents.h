#pragma once

#include "support/SmallLeague.h"

namespace dravik {

// A skater, or a goalie, of a team (0..100) whose contract is out.
inline Player& FreeSkater(int index, int team = 6, int age = 25)
{
    Player& player = PutSkater(index, team, position::Center, status::Farm);
    player.Contract = 0;
    player.Age = age;
    return player;
}
inline Goalie& FreeGoalie(int index, int team = 6, int age = 25)
{
    Goalie& keeper = PutGoalie(index, team, status::Farm);
    keeper.Contract = 0;
    keeper.Age = age;
    return keeper;
}

} // namespace dravik
