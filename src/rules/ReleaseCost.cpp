#include "rules/ReleaseCost.h"

#include "league/Arithmetic.h"

namespace dravik {

long long RestOfContract(const Team& team, long long contract, long long salary)
{
    if (team.SeasonGames < 1)
        return Limit32(contract * salary);
    const auto seasons = static_cast<double>(Limit32((contract - 1) * salary));
    const auto gamesLeft = static_cast<double>(team.SeasonGames - team.GamesPlayed);
    return RoundToInt32(seasons + static_cast<double>(salary) * gamesLeft / static_cast<double>(team.SeasonGames));
}

double ReleaseCost(int percent, long long restOfContract)
{
    return percent * static_cast<double>(restOfContract) / 100;
}

} // namespace dravik
