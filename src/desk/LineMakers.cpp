#include "desk/LineMakers.h"

namespace dravik {

bool AreMakersClosed(const League& rules) { return static_cast<bool>(rules.AutoRosterDisabled); }

Made MakeDay(const Work& work, int team, int day, Side side)
{
    if (AreMakersClosed(work.League.LeagueData))
        return {};
    return side == Side::Pro ? AutoLines(work, team, true, day) : AutoLinesFarm(work, team, true, day);
}

Made MakeRestOfDay(const Work& work, int team, int day)
{
    if (AreMakersClosed(work.League.LeagueData))
        return {};
    return AutoLinesPartial(work, team, true, day);
}

} // namespace dravik
