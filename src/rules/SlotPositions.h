#pragma once

#include "league/PersonId.h"
#include "rules/DaySlots.h"

namespace dravik {

// Whether a skater of `position` stands out of his position in a slot: a center on a wing, a left wing on the right one, a
// defenseman among the forwards. A slot of wings takes both, one of forwards all three, a penalty shot everybody. Nobody without
// a position (1..4) stands out of it, nor anybody in a slot of goalies. It is legal and no judge asks.
bool IsOutOfPosition(const DaySlot& slot, long long position);

// How many of a day's slots hold somebody: a skater among those of skaters, a goalie among those of goalies. The placeholder
// of slot 0 holds none.
int SlotsHeld(const Lines& day, PersonId who);

} // namespace dravik
