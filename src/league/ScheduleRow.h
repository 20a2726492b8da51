#pragma once

#include "league/Field.h"

namespace dravik {

// One row of the calendar. It can hold a pro game and a farm game.
struct ScheduleRow {
    Int16 GameDay;
    Boolean ProGame;
    Boolean ProPlayed;
    Int16 ProAway;
    Int16 ProHome;
    Boolean FarmGame;
    Boolean FarmPlayed;
    Int16 FarmAway;
    Int16 FarmHome;
};

static_assert(sizeof(ScheduleRow) == 18 && alignof(ScheduleRow) == 1);
static_assert(offsetof(ScheduleRow, GameDay) == 0);
static_assert(offsetof(ScheduleRow, ProGame) == 2);
static_assert(offsetof(ScheduleRow, ProPlayed) == 4);
static_assert(offsetof(ScheduleRow, ProAway) == 6);
static_assert(offsetof(ScheduleRow, ProHome) == 8);
static_assert(offsetof(ScheduleRow, FarmGame) == 10);
static_assert(offsetof(ScheduleRow, FarmPlayed) == 12);
static_assert(offsetof(ScheduleRow, FarmAway) == 14);
static_assert(offsetof(ScheduleRow, FarmHome) == 16);

} // namespace dravik
