#include "desk/Strategy.h"

#include <numeric>

namespace dravik {

std::optional<int> GiveStrategyPoints(const Work& work, int team, int day, Side side, int style,
                                      const StrategyBars& bars)
{
    const int given = std::accumulate(bars.begin(), bars.end(), 0);
    if (given > StrategyPoints)
        return std::nullopt;
    LinesOf(work.League, team, day, side).Strategy[style] = bars[style];
    return StrategyPoints - given;
}

} // namespace dravik
