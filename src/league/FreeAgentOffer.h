#pragma once

#include "league/Field.h"

namespace dravik {

// What a team offers a person without a contract or a team: a salary and a bonus for some years. `Id` is his index, a
// goalie's 10000 more; in a slot that was never used it is 0.
struct FreeAgentOffer {
    Int16 Id;
    Int16 Team;
    Int32 Salary;
    Int16 Duration;
    Int32 Bonus;
    Text<1000> Comment;
};

static_assert(sizeof(FreeAgentOffer) == 1014 && alignof(FreeAgentOffer) == 1);
static_assert(offsetof(FreeAgentOffer, Id) == 0);
static_assert(offsetof(FreeAgentOffer, Team) == 2);
static_assert(offsetof(FreeAgentOffer, Salary) == 4);
static_assert(offsetof(FreeAgentOffer, Duration) == 8);
static_assert(offsetof(FreeAgentOffer, Bonus) == 10);
static_assert(offsetof(FreeAgentOffer, Comment) == 14);

// The offer to everybody; the slot is his id.
using OfferTable = Row<FreeAgentOffer, 1, 11000>;

} // namespace dravik
