#pragma once

#include <optional>
#include <string>

namespace dravik {

// A team's payroll beside what it may reach, in whole units of money.
struct CapStanding {
    long long Pro = 0;
    long long Farm = 0;
    long long Total = 0;          // what counts against the cap: pro, with farm and coaches where the league says so
    std::optional<long long> Cap; // none in the modes without a cap
};

// Where a team of 1..100 stands. Payrolls or a cap beyond 32 bits fail with 6.
CapStanding StandingAgainstCap(int team);

// What the CheckSalaryCap that ran last had to say, shown or not, with a line break behind each message. Nothing, where
// the CheckRoster that was to judge the payroll too broke off before it.
const std::string& LastCapText();
// Forgets it, so that no team is shown what another one was told.
void ForgetCapText();

} // namespace dravik
