#include "desk/FirstDay.h"

#include "rules/LineJudge.h"

namespace dravik {

std::string_view FirstDayWarning(Side side)
{
    return side == Side::Pro ? "Lines for Day #1 are Incomplete!" : "Farm Lines for Day #1 are Incomplete!";
}

void WarnOfFirstDay(const Work& work, int team, Side side)
{
    if (!JudgeDay(work, team, side, 1, false))
        work.Says.ShowBox(FirstDayWarning(side), box::Warning);
}

} // namespace dravik
