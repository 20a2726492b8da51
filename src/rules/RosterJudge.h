#pragma once

#include "league/Work.h"
#include "rules/SalaryCap.h"

#include <optional>
#include <string>

namespace dravik {

// What the judge of a roster found, as far as he came.
struct RosterVerdict {
    bool Complete = false;
    bool Repaired = false;         // somebody was moved, or would have been
    std::optional<int> Failed;     // the number of the failure that ended the judgement, which was told
    std::string Text;              // shown or not; empty when nothing is wrong
    std::optional<CapVerdict> Cap; // where the payroll was judged too

    explicit operator bool() const { return Complete; }
};

// Judges the roster of a team and repairs what may not stand where it stands, silent calls included. Complete when nothing
// is missing or too many. `withSalaryCap` judges the payroll too; `log` logs the text, and `showMessage` shows it in a
// warning box, as long as reports are allowed. A team out of 1..100 shows "Integrity Check Failed!" in a critical box and
// is not complete.
RosterVerdict CheckRoster(const Work& work, int team, bool log, bool withSalaryCap, bool showMessage);

} // namespace dravik
