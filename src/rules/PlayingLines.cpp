#include "rules/PlayingLines.h"

#include "rules/LineLookups.h"

namespace dravik {

std::string PlayingLines(const Tables& league, int team, int player, int day, Side side)
{
    return (side == Side::Pro ? PlayOnLineString : PlayOnLineStringFarm)(league, team, player, day);
}

std::string PlayingText(const Tables& league, int team, int player, int day, Side side)
{
    const int count = (side == Side::Pro ? PlayOnLineInteger : PlayOnLineIntegerFarm)(league, team, player, day);
    return "(" + std::to_string(count) + ") - " + PlayingLines(league, team, player, day, side);
}

} // namespace dravik
