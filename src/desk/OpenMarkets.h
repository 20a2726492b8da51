#pragma once

#include "league/League.h"

// Which of the markets a league has open at this time of the year.
namespace dravik {

// Whether managers may make offers to free agents: always in the off-season, in the season before its deadline.
bool IsOpenToOffers(const League& rules);

// Whether a draft is ahead for which they may rank people: in the off-season alone.
bool IsOpenToDraft(const League& rules);

} // namespace dravik
