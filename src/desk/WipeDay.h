#pragma once

#include "machine/Work.h"
#include "rules/LineSlots.h"

namespace dravik {

// Asks whether it is meant, and empties a day (1..10) of the lines of `team` (1..100), as WipesLines does. True when the
// answer was yes.
bool WipeDay(const Work& work, int team, int day, Side side);

} // namespace dravik
