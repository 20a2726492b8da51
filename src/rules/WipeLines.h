#pragma once

#include "league/Tables.h"
#include "machine/Voice.h"

namespace dravik {

// Empties one day, pro or farm; the goalie-pull values and the reserved words stay. A team (1..100) or day (1..10) out of
// range shows "Integrity Check Failed!" in a critical box and does nothing.
void WipesLines(Tables& league, Voice& says, int team, int day, bool pro);

// Takes a person (a goalie is his index + 10000) out of all ten days, pro and farm; a skater loses his captaincy too. A team
// out of range is told like that and does nothing.
void WipePlayerFromTeamLines(Tables& league, Voice& says, int team, int id);

} // namespace dravik
