#pragma once

#include "Random.h"

namespace dravik::sample {

// Draws the ratings of the skater, or goalie, in slot `index`, around a manner of playing that fits his position and
// age, and moves them until his overall is `overall` (40..86). Reads his `Position` and `Age`, and the league's
// weights.
void RateSkater(Random& random, int index, int overall);
void RateGoalie(Random& random, int index, int overall);

} // namespace dravik::sample
