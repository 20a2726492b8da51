#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"

namespace dravik {

// Releases a person of `team` (1..100), if the general manager says yes: asks how many percent of the rest of his contract he
// is paid, takes that from the team's cash, takes him off all lines, tells the news, and leaves him without a team, a
// contract and flags. True when he was released. What fails half way stays as far as it came.
bool ReleasePerson(const Work& work, int team, PersonId who);

} // namespace dravik
