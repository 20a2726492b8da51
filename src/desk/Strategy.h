#pragma once

#include "machine/Work.h"
#include "rules/LineSlots.h"

#include <optional>

namespace dravik {

// The points that a team gives out each day. All of them may go to one style.
inline constexpr int StrategyPoints = 5;

// What stands at the bars of the three styles: physical, defense, offense.
using StrategyBars = Row<int, 0, 2>;

// Gives a style (0..2) of a day (1..10) of `team` (1..100) what its bar says, if the three bars together stay within the
// points: returns those that are left. Nothing where they do not, and the record stays. It is the bars that count, not what
// the record holds: one may hold points that no bar reaches. The league is not marked as modified. Fails with 9 out of range.
std::optional<int> GiveStrategyPoints(const Work& work, int team, int day, Side side, int style,
                                      const StrategyBars& bars);

} // namespace dravik
