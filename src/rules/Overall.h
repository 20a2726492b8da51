#pragma once

#include "league/PersonId.h"
#include "machine/Voice.h"

#include <optional>

namespace dravik {

// The overall rating of a person, at most 99. `position` 1..4 takes a `Player` index, 5 a `Goalie` index; an index without
// a record gives 0, and so does a sum that does not fit 16 bits. Another position has no overall.
std::optional<int> OverallAt(const Tables& league, int position, int id);

// The same; another position shows "Integrity Check Failed!" in a critical box and gives 0.
int CalculateOverall(const Tables& league, Voice& says, int position, int id);

// The same in the position that somebody's record names. A skater outside the table fails with 9.
int CalculateOverall(const Tables& league, Voice& says, PersonId who);

} // namespace dravik
