#pragma once

#include "machine/Work.h"
#include "makers/Makers.h"
#include "rules/LineSlots.h"

#include <string_view>

// The automatic makers of lines as a general manager calls them: they tell that they have come to their end. A league may
// close them, and a roster that is not complete is refused by the makers themselves.
namespace dravik {

// Whether the league does without automatic makers.
bool AreMakersClosed(const League& rules);

// What whoever cannot press a button is told where the league does without them.
inline constexpr std::string_view MakersClosedWords = "The league does without automatic makers.";

// Fills one day (1..10) of the lines of `team` (1..100). Closed, nothing is done, and nothing told.
Made MakeDay(const Work& work, int team, int day, Side side);

// Keeps what is usable of one day of the pro lines and fills the rest; the farm has no such maker. Closed, nothing is done,
// and nothing told.
Made MakeRestOfDay(const Work& work, int team, int day);

} // namespace dravik
