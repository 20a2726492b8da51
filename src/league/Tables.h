#pragma once

#include "league/League.h"
#include "league/Person.h"
#include "league/Prospect.h"
#include "league/RosterChange.h"
#include "league/ScheduleRow.h"
#include "league/Team.h"

#include <memory>
#include <type_traits>

namespace dravik {

using TeamTable = Row<Team, 1, 100>;
using PlayerTable = Row<Player, 0, 10000>;
using GoalieTable = Row<Goalie, 0, 1000>;
using CoachTable = Row<Coach, 1, 500>;
using ProspectTable = Row<Prospect, 1, 300>;
using ScheduleTable = Row<ScheduleRow, 1, 5000>;
using PlayerChangeTable = Row<RosterChange, 1, 10000>;
using GoalieChangeTable = Row<RosterChange, 1, 1000>;

// One league: all its tables, and nothing else. Records refer to each other by index, so a copy of the bytes is a league of
// its own, on which a judge may repair what he likes.
struct Tables {
    League LeagueData;
    TeamTable Teams;
    PlayerTable Players; // slot 0 is the placeholder that an empty line slot shows
    GoalieTable Goalies; // slot 0 likewise
    CoachTable Coaches;
    ProspectTable Prospects;
    ScheduleTable GameSchedule;
    PlayerChangeTable RosterChanges;
    GoalieChangeTable RosterChangesGoalie;
};

static_assert(std::is_trivially_copyable_v<Tables> && alignof(Tables) == 1);

// A league of zeros, and a copy of `league`. A league is too large for a stack: it lives on the heap alone.
std::unique_ptr<Tables> MakeTables();
std::unique_ptr<Tables> Copy(const Tables& league);

// Sets `Status` of every RosterChange to the value of a person whom nobody has touched.
void MarkRosterChangesUntouched(Tables& league);

// Zeroes the five tables that a load replaces. `LeagueData`, `Coaches` and the changes stay as they are.
void EmptyLeagueTables(Tables& league);

} // namespace dravik
