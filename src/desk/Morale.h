#pragma once

#include "desk/TypedNumber.h"
#include "machine/Work.h"

#include <string_view>

namespace dravik {

// Take what was typed as the morale of `team` (1..100) or of its farm: the number at the head of the text, rounded, and 1
// instead of less, which the box shows then. A text that `CheckInput` refuses is told. Fail with 6, and store nothing, when
// the number does not fit 16 bits.
TypedNumber SetMorale(const Work& work, int team, std::string_view text);
TypedNumber SetFarmMorale(const Work& work, int team, std::string_view text);

} // namespace dravik
