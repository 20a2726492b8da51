#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"

namespace dravik {

// Erases a person who stands at `position` (1..5), if the general manager says yes: whoever has a team has to be released as
// well, and the news tell whether he retires. The simulator's own version of the routine hears of it; the record stays in its
// table. True when he was erased.
bool ErasePerson(const Work& work, PersonId who, int position);

} // namespace dravik
