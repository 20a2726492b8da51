#pragma once

#include "league/PersonId.h"
#include "machine/Work.h"
#include "rules/SalaryCap.h"

#include <optional>
#include <string>
#include <vector>

namespace dravik {

// What the judge of a roster may hold against it.
enum class RosterFault {
    // A person.
    UnfitOnPro, // injured, suspended, without a contract or with a salary outside the league's limits, on the pro team
    TooGoodForFarm, // by his overall
    TooDearForFarm, // by his salary
    // The pro team.
    FewCenters,
    FewLeftWings,
    FewRightWings,
    FewDefensemen,
    FewGoalies,
    FewSkaters,
    ManyGoalies,
    ManySkaters,
    ManyPeople,
    // Pro and farm together.
    FewCentersInBoth,
    FewLeftWingsInBoth,
    FewRightWingsInBoth,
    FewDefensemenInBoth,
    FewGoaliesInBoth,
    FewSkatersInBoth
};

// One finding: about a person, or how many were counted beside what the league wants.
struct RosterFinding {
    RosterFault Fault;
    PersonId Person = {};
    long long Count = 0;
    long long Limit = 0;
};

// What the judge of a roster found, as far as he came, in the order in which he found it.
struct RosterVerdict {
    bool Complete = false;
    bool Repaired = false;     // somebody was moved, or would have been
    std::optional<int> Failed; // the number of the failure that ended the judgement, which was told
    std::vector<RosterFinding> Findings;
    bool Ended = false;            // everybody was looked at
    std::optional<CapVerdict> Cap; // where the payroll was judged too

    explicit operator bool() const { return Complete; }
};

// The words of one finding, without a line break. Names are those that `league` holds: the league that was judged, or a copy.
std::string WordsOf(const Tables& league, const RosterFinding& finding);

// What the judge has to say of `team`, the payroll aside: the words of all findings, a line break behind each, and the head and the
// close around them, which a judgement that broke off has not. Empty when nothing is wrong.
std::string TextOf(const Tables& league, int team, const RosterVerdict& verdict);

// Judges the roster of a team and repairs what may not stand where it stands, silent calls included. Complete when nothing
// is missing or too many. `withSalaryCap` judges the payroll too; `log` logs the text, and `showMessage` shows it in a
// warning box, as long as reports are allowed. A team out of 1..100 shows "Integrity Check Failed!" in a critical box and
// is not complete.
RosterVerdict CheckRoster(const Work& work, int team, bool log, bool withSalaryCap, bool showMessage);

} // namespace dravik
