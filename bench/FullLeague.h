#pragma once

#include "session/Session.h"
#include "support/SmallLeague.h"

namespace dravik {

// Starts an ordinary league in which the first `skaters` and `goalies` slots of the tables are in use, by dressed people of
// the teams 6 to 35. Whoever measures puts the team at hand among them or behind them.
inline void FillLeague(int skaters = PlayerTable::last, int goalies = GoalieTable::last)
{
    ResetClientVariables();
    Machine().MessagesAllowed = true;
    MarkRosterChangesUntouched(OpenLeague);
    SetOrdinaryRules();
    LeagueData.MaxProPlayers = 60;
    LeagueData.FarmMaxOverall = 99;
    LeagueData.ScheduleShown = true;
    PlayerStatCount = 15;
    GoalieStatCount = 13;
    for (int id = 1; id <= skaters; ++id)
        PutSkater(id, 6 + id % 30, 1 + id % 4, status::Pro, 40 + id % 50);
    for (int id = 1; id <= goalies; ++id)
        PutGoalie(id, 6 + id % 30, status::Pro, 40 + id % 50);
}

// Calls `change` with everybody of a full league and his index.
template <class Change>
void ChangeEverybody(const Change& change)
{
    for (int id = 1; id <= PlayerTable::last; ++id)
        change(Players[id], id);
    for (int id = 1; id <= GoalieTable::last; ++id)
        change(Goalies[id], id);
}

} // namespace dravik
