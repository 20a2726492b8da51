#pragma once

#include "league/Field.h"

namespace dravik {

// The last word of the general manager on one player or goalie, as the lines file carries it.
struct RosterChange {
    // `Status` of a person whom nobody has touched since start-up.
    static constexpr int Untouched = 10;

    Byte Status;
    Boolean Protected;
    Boolean TradeAvailable;
};

static_assert(sizeof(RosterChange) == 5 && alignof(RosterChange) == 1);
static_assert(offsetof(RosterChange, Status) == 0);
static_assert(offsetof(RosterChange, Protected) == 1);
static_assert(offsetof(RosterChange, TradeAvailable) == 3);

} // namespace dravik
