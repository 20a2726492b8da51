#include "desk/PlayerPosition.h"

#include "league/Positions.h"

#include <string>

namespace dravik {

void RepairPositions(const Work& work)
{
    for (int slot = 1; slot <= PlayerTable::last; ++slot) {
        Player& player = work.League.Players[slot];
        if (!player.InUse || (player.Position >= position::Center && player.Position <= position::Defense))
            continue;
        work.Says.ShowBox(player.Name.Trimmed() + " has no position! He's now center.", box::Warning);
        player.Position = position::Center;
    }
}

void SetPosition(const Work& work, int slot, int position)
{
    Player& player = work.League.Players[slot];
    player.Position = position;
    work.Says.LeagueNews(player.Name.Trimmed() + " position was change to " + std::string(PositionName[position]));
}

} // namespace dravik
