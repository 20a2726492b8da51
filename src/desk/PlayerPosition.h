#pragma once

#include "machine/Work.h"

namespace dravik {

// Makes every skater of the league who has no position (1..4) a center, and tells each of them in a warning box.
void RepairPositions(const Work& work);

// Gives the skater of `slot` another position (1..4), which the league's news tell.
void SetPosition(const Work& work, int slot, int position);

} // namespace dravik
