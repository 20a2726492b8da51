#pragma once

#include "bench/FullLeague.h"
#include "bench/Ratio.h"
#include "makers/Makers.h"
#include "rules/LineJudge.h"
#include "rules/RosterJudge.h"
#include "session/Session.h"

namespace dravik {

// The team at hand of a league whose places are all taken.
inline constexpr int Own = 5;
inline constexpr int Skaters = 52;
inline constexpr int Keepers = 6;

inline void SetCap()
{
    League& league = LeagueData;
    league.SalaryCapMode = 1;
    league.SalaryCap = 500000000;
    league.FarmRosterRequired = true;
    league.FarmPayrollInCap = true;
    league.CoachPayrollInCap = true;
    league.FarmSalaryCap = 500000000;
}

// The people of the team at hand, spread over the tables. Its pro roster, the farm's and all lines are complete.
inline void PutTeam()
{
    FillLeague();
    SetCap();
    const TeamMaker made(Own);
    // Eighteen of either side are enough of every position: 4, 4, 4 and 6.
    const auto positionOf = [](int place) { return place % 18 < 12 ? 1 + place % 18 % 3 : position::Defense; };
    for (int place = 0; place < Skaters; ++place) {
        const int status = place < 18 ? status::Pro : place < 36 ? status::Farm : status::Scratch;
        PutSkater(1 + place * 190, Own, positionOf(place), status, 60 + place % 30);
    }
    for (int place = 0; place < Keepers; ++place) {
        const int status = place < 2 ? status::Pro : place < 4 ? status::Farm : status::Scratch;
        PutGoalie(1 + place * 160, Own, status, 70 + place);
    }
    for (int day = 1; day <= 10; ++day) {
        AutoLines(OpenWork(), Own, false, day);
        AutoLinesFarm(OpenWork(), Own, false, day);
    }
    Demand(CheckRoster(OpenWork(), Own, false, true, false).Complete);
    Demand(CheckLine(OpenWork(), Own, false, 1, false).Complete);
    Demand(CheckLineFarm(OpenWork(), Own, false, 1, false).Complete);
}

// Nobody of it plays.
inline void ScratchEverybody()
{
    for (int place = 0; place < Skaters; ++place)
        Players[1 + place * 190].Status = status::Scratch;
    for (int place = 0; place < Keepers; ++place)
        Goalies[1 + place * 160].Status = status::Scratch;
}

} // namespace dravik
