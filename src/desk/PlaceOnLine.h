#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"
#include "rules/DaySlots.h"

namespace dravik {

// Whether a slot of the lines of a side takes somebody of that position (1..4, a goalie 5). Extra forwards want a forward,
// extra defensemen a defenseman, all other slots take any skater, and goalies' slots any goalie. The placeholder of slot 0
// goes by a center's position, and may play defense among the farm's extras all the same.
bool TakesSomebody(const DaySlot& slot, Side side, PersonId who, int position);

// Puts somebody into a slot of a day (1..10) of `team` (1..100), which takes him by the rule above: false, with nothing done,
// where it does not. Nobody asks here whether he may play, plays his position or stands twice: the judge of the lines does.
// Whoever judges them marks the league as modified. A team or day out of range fails with 9.
bool PlaceOnLine(const Work& work, int team, int day, Side side, const DaySlot& slot, PersonId who, int position);

// Whether two slots of a day of `team` (1..100) may change their people: somebody stands in each, another one in each, and each
// takes the other's by the rule above. A number outside its table is nobody. Empty slots take no part, since no slot is
// emptied by hand. A team or day out of range fails with 9.
bool MaySwapOnLine(const Tables& league, int team, int day, Side side, const DaySlot& one, const DaySlot& other);

// Has them change places: false, with nothing done, where they may not. As above, the judge of the lines asks the rest.
bool SwapOnLine(const Work& work, int team, int day, Side side, const DaySlot& one, const DaySlot& other);

} // namespace dravik
