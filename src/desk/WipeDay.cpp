#include "desk/WipeDay.h"

#include "rules/WipeLines.h"

namespace dravik {

bool WipeDay(const Work& work, int team, int day, Side side)
{
    if (work.Says.ShowBox("Are you sure you want to wipe your lines?", box::YesNo) != button::Yes)
        return false;
    WipesLines(work.League, work.Says, team, day, side == Side::Pro);
    return true;
}

} // namespace dravik
