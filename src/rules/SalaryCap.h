#pragma once

#include "machine/Work.h"
#include "rules/People.h"

#include <optional>
#include <string>
#include <vector>

namespace dravik {

// A team's payroll beside what it may reach, in whole units of money.
struct CapStanding {
    long long Pro = 0;
    long long Farm = 0;
    long long Total = 0;          // what counts against the cap: pro, with farm and coaches where the league says so
    std::optional<long long> Cap; // none in the modes without a cap

    bool operator==(const CapStanding&) const = default;
};

// Where a team of 1..100 stands; `people` are those who belong to it. Payrolls or a cap beyond 32 bits fail with 6.
CapStanding StandingAgainstCap(const Tables& league, int team);
CapStanding StandingAgainstCap(const Tables& league, int team, const TeamPeople& people);

// What the judge of the cap may find.
enum class CapFault {
    Over,     // the team spends more than its cap
    FarmOver, // its farm does
    Under     // the team spends too little, which is told and allowed
};

struct CapFinding {
    CapFault Fault;
    long long Amount; // by how much, in whole units of money
};

// What the judge of the cap found, as far as he came, in the order in which he found it.
struct CapVerdict {
    bool Within = false;
    std::optional<int> Failed; // the number of the failure that ended the judgement, which was told
    std::vector<CapFinding> Findings;

    explicit operator bool() const { return Within; }
};

// The words of one finding about `team`, in money as it is shown, and those of all, with a line break behind each.
std::string WordsOf(const Tables& league, const Formats& shown, int team, const CapFinding& finding);
std::string TextOf(const Tables& league, const Formats& shown, int team, const CapVerdict& verdict);

// Whether the payroll stands within the cap. With `showMessage` what is wrong is shown in warning boxes, as long as reports
// are allowed; otherwise it is logged. A team out of 1..100 shows "Integrity Check Failed!" in a critical box and is not
// within. The other takes the people who belong to the team from a caller who has listed them.
CapVerdict CheckSalaryCap(const Work& work, int team, bool showMessage);
CapVerdict CheckSalaryCap(const Work& work, int team, const TeamPeople& people, bool showMessage);

} // namespace dravik
