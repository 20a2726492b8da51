#pragma once

#include "machine/Platform.h"
#include "machine/Work.h"

namespace dravik {

// Asks for the password of `team` (1..100) and says whether the user may go on. A team without a password is open. A
// wrong one is told in a warning box; every call asks again.
bool CheckPassword(const Tables& league, Platform& machine, int team);

// Gives `team` (1..100) another password, if the general manager says yes, and asks for it twice. Two texts that are equal to
// the letter are stored as their digest, which `machine` makes; two empty ones erase the password; any others leave it as it
// is. Which of them it was is told, and the league counts as edited.
void ChangePassword(const Work& work, Platform& machine, int team);

} // namespace dravik
