#pragma once

#include "machine/Work.h"

namespace dravik {

// Fire the coach of `team` (1..100), or of its farm, if the general manager says yes: the news tell it, and both are free. True
// when he was fired. A team without a coach is not asked.
bool FireProCoach(const Work& work, int team);
bool FireFarmCoach(const Work& work, int team);

} // namespace dravik
