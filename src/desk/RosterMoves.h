#pragma once

#include "league/PersonId.h"
#include "league/Positions.h"
#include "machine/Work.h"

#include <functional>

namespace dravik {

// How many people of a team stand where: entries 0 to 2 by `Status`, entry 3 those off the farm who are fit to dress.
using RosterCounts = Row<Int16, 0, 3>;

// Whether a command goes on with the person at hand, leaves him out, or ends for everybody.
enum class Permission { Given, Refused, Ended };

// Whether somebody may go to the farm as far as the command itself asks: his overall, which the caller names, and the trade
// deadline. What stands against it is told.
Permission MayGoToFarm(const Work& work, long long overall);
// Whether one more may leave the farm. A full pro team is told.
Permission MayLeaveFarm(const Work& work, const RosterCounts& counts);

// Makes a scratch of somebody on the farm who is too good or too dear for it. The list of changes does not hear of it, nor is
// the league marked as modified.
void KeepOffFarm(const Work& work, PersonId who);

// Moves a person of `team` (1..100) from one status to another and counts him there. What stands against it is told in a
// warning box, in this order: he is hurt, suspended, without a contract, too dear for the farm. Sending him down may ask for
// waivers first. He leaves all lines. True when he moved.
bool MoveOnRoster(const Work& work, int team, PersonId who, status::Number from, status::Number to,
                  RosterCounts& counts);

// Sends a person of `team` to waivers and tells it. One who stands on the pro team is taken to the scratches first: `scratch`
// does it and says whether he moved; where he did not, "Integrity Check Failed!" is shown, and he goes from where he stands.
// Behind the trade deadline nothing but that is told.
void SendToWaivers(const Work& work, int team, PersonId who, const std::function<bool()>& scratch);

} // namespace dravik
