#pragma once

#include "machine/Work.h"

#include <functional>

namespace dravik {

// Ask how much is added to the bank account of `team` (1..100), or to its payroll bonus, and add it; with a leading minus it is
// taken away. A bonus below 0 becomes 0. An empty answer ends the command, and a text that `CheckInput` refuses is told.
// `showFigures` runs behind the addition, before the league counts as edited. Fail with 6, and leave the amount as it is, when
// the sum does not fit 32 bits.
void ChangeCash(const Work& work, int team, const std::function<void()>& showFigures);
void ChangePayrollBonus(const Work& work, int team, const std::function<void()>& showFigures);

} // namespace dravik
