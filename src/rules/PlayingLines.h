#pragma once

#include "rules/LineSlots.h"

#include <string>

namespace dravik {

// Where a skater plays on a day of a side: the tags of PlayOnLineString, or of its farm's twin. A team (1..100) or day (1..10)
// out of range fails with 9.
std::string PlayingLines(const Tables& league, int team, int player, int day, Side side);

// The same behind their number, as the lines screens show it: "(3) - L-1C, PP-1C, PS-2, ".
std::string PlayingText(const Tables& league, int team, int player, int day, Side side);

} // namespace dravik
