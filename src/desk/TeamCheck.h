#pragma once

#include "desk/LinesOfAllDays.h"
#include "rules/RosterJudge.h"

// What the judges say of a whole team, for whoever looks at many of them.
namespace dravik {

struct TeamCheck {
    RosterVerdict Roster; // with the payroll
    DayVerdicts Pro;
    DayVerdicts Farm;

    // Whether nothing is left to do: the roster, and all days of both sides.
    [[nodiscard]] bool IsComplete() const;
};

// Judges roster, payroll and all days of both sides of `team` (1..100) in order to look: each by itself, as `league` stands. The
// judges work on `scratch`, which holds the same league as `league` before and afterwards; nobody is told anything. What
// cannot be judged says so by its `Failed`.
TeamCheck LookAtTeam(const Tables& league, const Formats& shown, int team, Tables& scratch);

// The days of a side alone, in the same way.
DayVerdicts LookAtDaysOn(const Tables& league, const Formats& shown, int team, Side side, Tables& scratch);

} // namespace dravik
