#pragma once

#include "desk/Paper.h"
#include "rules/LineSlots.h"

#include <string>

namespace dravik {

// What the line-ups of a side of `team` (1..100) say on paper, from day `firstDay` to `lastDay` (1..10), a part a day: the game and its
// opponent, strategy, goalie pull, all lines and units, goalies, extra forwards and defensemen, penalty shots, and who does not play
// and why; of a pro team the captains too. `date` is that of the client file in words, or empty. The opponent stays unsaid where the
// league hides its calendar, overalls where it hides them, and single ratings always. An empty slot, and one with a number outside
// its table, reads "-". Line-ups are a team's private decisions: who calls this has proved its password, or the team has none.
// A team or day out of range fails with 9. Nothing is judged and no box is shown.
Paper LineUpPaper(const Tables& league, int team, Side side, int firstDay, int lastDay, const std::string& date);

} // namespace dravik
