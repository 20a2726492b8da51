#include "makers/Dealing.h"
#include "makers/Makers.h"

namespace dravik {

void AutoLines(int team, bool verbose, int day)
{
    // A line-up dresses at most 25 skaters; a league that asks for more fails when the dealing comes to the 26th place.
    constexpr int room = 25;
    MakeLines(team, verbose, day,
              {.Of = Side::Pro,
               .ListSkaters = [](int of, PositionCounts& counts) { return ListDressedSkaters(of, &counts); },
               .ListGoalies = ListDressedGoalies,
               .Room = room});
}

} // namespace dravik
