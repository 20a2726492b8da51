#pragma once

#include "league/League.h"

namespace dravik {

// Whether somebody of that overall is above what the league leaves on its farms.
inline bool IsTooGoodForFarm(const League& rules, long long overall) { return overall > rules.FarmMaxOverall; }

// Whether somebody of that salary is above what the league leaves on its farms. A limit below 1 is none.
inline bool IsTooDearForFarm(const League& rules, long long salary)
{
    return rules.FarmMaxSalary >= 1 && salary > rules.FarmMaxSalary;
}

} // namespace dravik
