#pragma once

#include "desk/Paper.h"
#include "league/Tables.h"
#include "machine/Formats.h"

#include <string>

namespace dravik {

// What the roster of `team` (1..100) says on paper: pro, scratches and farm, a table each, with position, age, condition, contract,
// salary in the locale's form, what is told of a person in signs, and overalls where the league shows them. Single ratings stand
// nowhere. `date` is that of the client file in words, or empty. A roster is a team's private decision: who calls this has proved
// its password, or the team has none. A team out of range fails with 9. Nothing is judged and no box is shown.
Paper RosterPaper(const Tables& league, const Formats& shown, int team, const std::string& date);

} // namespace dravik
