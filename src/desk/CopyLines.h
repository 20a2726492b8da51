#pragma once

#include "machine/Work.h"
#include "rules/LineSlots.h"

namespace dravik {

// Makes a line-up another one's twin: all slots, the strategy and the goalie pull; the reserved words stay.
void CopyDay(const Lines& from, Lines& to);

// Copies one day (1..10) of `team` (1..100) to another, as above.
// A team or day out of range is told as failure 9 in Copy, and nothing is done.
void CopyLines(const Work& work, int team, Side side, int from, int to);

// Asks for the day to copy a day to, and whether it is meant; then copies it and tells so. A number outside 1 to `lastDay`
// is told in a warning box, and what is no number counts as 0. One beyond 16 bits fails with 6.
void CopyLinesToDay(const Work& work, int team, Side side, int from, int lastDay);

// Asks whether it is meant, copies a day to all other nine, whatever games there are, and tells so.
void CopyLinesToAllDays(const Work& work, int team, Side side, int from);

} // namespace dravik
