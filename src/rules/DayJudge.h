#pragma once

#include "rules/LineJudge.h"
#include "rules/LineSlots.h"

#include <cstddef>

namespace dravik {

// What CheckLine or CheckLineFarm says of a day of a side; nothing is logged.
LineVerdict JudgeDay(const Work& work, int team, Side side, int day, bool showMessage);

// Whether whoever stands in a slot, named by its word of the record, was found a second time where he may stand but once.
bool FindsTwice(const LineVerdict& verdict, std::size_t word);

} // namespace dravik
