#include "makers/Dealing.h"
#include "makers/Makers.h"

namespace dravik {

Made AutoLines(const Work& work, int team, bool verbose, int day)
{
    // A line-up dresses at most 25 skaters; a league that asks for more fails when the dealing comes to the 26th place.
    constexpr int room = 25;
    return MakeLines(
        work, team, verbose, day,
        {.Of = Side::Pro,
         .ListSkaters = [](LinesRun& run, PositionCounts& counts) { return ListDressedSkaters(run, &counts); },
         .ListGoalies = ListDressedGoalies,
         .Room = room});
}

} // namespace dravik
