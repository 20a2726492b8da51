#pragma once

#include "league/Tables.h"
#include "machine/Voice.h"

namespace dravik {

// Whether the trade deadline is in force, and whether it is passed besides.
bool IsDeadlineInForce(const League& rules);
bool DeadlineHasPassed(const League& rules);

// True when sending the person down needs waivers. `id` is a `Player` index, or a `Goalie` index + 10000; one without a
// record fails with 9, which is told.
bool WaiverCheck(const Tables& league, Voice& says, int id);

// Marks a person as sent to waivers: his `Suspension` becomes 99. `team` is 1..100, `id` 1..11000 (a goalie is his index
// + 10000); anything else shows "Integrity Check Failed!" in a critical box.
void MarkWaived(Tables& league, Voice& says, int team, int id);

} // namespace dravik
