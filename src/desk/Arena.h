#pragma once

#include "desk/TypedNumber.h"
#include "machine/Work.h"

#include <string_view>

namespace dravik {

// Takes what was typed as the seats of a level (1..5) of the arena of `team` (1..100): at most 99999, which the box shows
// instead of more. A text that `CheckInput` refuses is told. Fails with 6 when the number does not fit 32 bits.
TypedNumber SetArenaCapacity(const Work& work, int team, int level, std::string_view text);

// Names the arena of `team` (1..100), in 40 characters. False when `CheckInput` refused the text, which is told.
bool NameArena(const Work& work, int team, std::string_view text);

// The seats of all five levels.
long long TotalCapacity(const Team& team);

} // namespace dravik
