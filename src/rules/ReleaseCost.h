#pragma once

#include "league/Team.h"

namespace dravik {

// What a contract of so many years at `salary` is still worth to `team`: a season that has begun counts by the games left in
// it. Fails with 6 beyond 32 bits.
long long RestOfContract(const Team& team, long long contract, long long salary);

// What a team pays to whom it releases: so many percent (0..100) of the rest of his contract.
double ReleaseCost(int percent, long long restOfContract);

} // namespace dravik
