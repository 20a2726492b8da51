#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"

namespace dravik {

// Takes a person off the market who may not be traded, and tells "Integrity Check Failed!" in a critical box. False, with
// nothing done, for everybody else.
bool TakeBarredOffMarket(const Work& work, PersonId who);

// Puts a person onto the trade market or takes him off it, in his record and in the list of changes.
void SetTradeAvailable(const Work& work, PersonId who, bool available);
bool IsTradeAvailable(const Tables& league, PersonId who);

// Protects a person of `team` (1..100) or does so no more, and counts it. One too many is told and stays as he is.
void SetProtected(const Work& work, int team, PersonId who, bool isProtected);

void SetNoApplyRerate(const Work& work, PersonId who, bool noApplyRerate);
void SetNoTrade(const Work& work, PersonId who, bool noTrade);

} // namespace dravik
