#pragma once

#include "machine/Work.h"
#include "rules/LineSlots.h"

#include <string_view>

// The lines of day 1, the next game, without which nothing can be saved.
namespace dravik {

// What is said of lines of day 1 that are not complete.
std::string_view FirstDayWarning(Side side);

// Judges day 1 of `team` (1..100) in silence, and warns of it in a box where it is not complete. The judge repairs as always.
void WarnOfFirstDay(const Work& work, int team, Side side);

} // namespace dravik
