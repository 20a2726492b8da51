#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"
#include "rules/LineSlots.h"

#include <functional>

namespace dravik {

// Visits whom the lines of a side of `team` (1..100) may hold, skaters before goalies, each kind in the order of its table:
// who belongs to the team, has the status of that side, and is fit. `position` is 1..4, a goalie's 5. A skater without a
// position is told in a critical box and left out.
using VisitCandidate = std::function<void(PersonId who, int position)>;
void EachLineCandidate(const Work& work, int team, Side side, const VisitCandidate& visit);

// Whether the placeholders of record 0 may be put into lines too: on the farm of a league that requires no farm roster.
bool ArePlaceholdersCandidates(const League& rules, Side side);

} // namespace dravik
