#pragma once

#include "league/Tables.h"
#include "rules/LineSlots.h"

#include <string>

namespace dravik {

// The tags of the skater slots of a day that hold `player`, "L-1C, PP-1C, PS-2, ", in the order of `SkaterSlots`; the
// number of those slots; and the farm's twins of both. A team (1..100) or day (1..10) out of range fails with 9.
std::string PlayOnLineString(const Tables& league, int team, int player, int day);
std::string PlayOnLineStringFarm(const Tables& league, int team, int player, int day);
int PlayOnLineInteger(const Tables& league, int team, int player, int day);
int PlayOnLineIntegerFarm(const Tables& league, int team, int player, int day);

// The tag of one slot, "L-1C", as it stands among them. The two places of a pair have the same.
std::string SlotTag(const LineSlot& slot);

} // namespace dravik
