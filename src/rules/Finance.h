#pragma once

#include "league/Tables.h"
#include "machine/Voice.h"
#include "rules/People.h"

// What a team pays.
namespace dravik {

// The payrolls of the pro and of the farm team, and what the coaches cost, in the 32-bit float in which they are added up;
// callers round them. Nobody's salaries add up to more than it holds. A team out of 1..100 fails with 9, where it is looked
// up. `people` are those who belong to the team, where the caller has them listed already.
struct Payrolls {
    float Pro;
    float Farm;
};
Payrolls PayrollsOf(const Tables& league, int team);
Payrolls PayrollsOf(const Tables& league, int team, const TeamPeople& people);
float CoachesOf(const Tables& league, int team);

// The same one by one. A team out of 1..100 shows "Integrity Check Failed!" in a critical box and gives 0; so does an
// unexpected failure, which is told.
float ProPayroll(const Tables& league, Voice& says, int team);
float FarmPayroll(const Tables& league, Voice& says, int team);
float CoachPayroll(const Tables& league, Voice& says, int team);
// What one game of the season costs. A cost beyond 32 bits fails with 6.
int ExpensePerGame(const Tables& league, Voice& says, int team);

} // namespace dravik
