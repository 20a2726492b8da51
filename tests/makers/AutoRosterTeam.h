#pragma once

#include "rules/LineSlots.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

namespace dravik {

// Team 5 dresses centers 1-4, left wings 5-8, right wings 9-12, defensemen 13-18 and goalies 1-2, all of overall 60: as
// many as the league dresses. People put in by a test come behind them.
class AutoRosterTest : public SmallLeague {
protected:
    AutoRosterTest() : Five(5)
    {
        Five.Dresses(4, position::Center)
            .Dresses(4, position::LeftWing)
            .Dresses(4, position::RightWing)
            .Dresses(6, position::Defense)
            .DressesGoalies(2);
        LeagueData.MinSalary = 0;
    }

    std::vector<Box> Run(bool verbose = true, bool partial = false)
    {
        AutoRoster(5, verbose, partial);
        return Machine.TakeBoxes();
    }

    static void PutOnLines(int skater)
    {
        Teams[5].ProLines[3].NormalForward(1, 1) = skater;
        Teams[5].Farm.FarmLines[7].ExtraDefense[2] = skater;
    }
    static bool IsOnLines(int skater)
    {
        return Teams[5].ProLines[3].NormalForward(1, 1) == skater ||
               Teams[5].Farm.FarmLines[7].ExtraDefense[2] == skater;
    }
    static void PutGoalieOnLines(int goalie)
    {
        Teams[5].ProLines[3].StartGoalie = goalie;
        Teams[5].Farm.FarmLines[7].BackupGoalie = goalie;
    }
    static bool IsGoalieOnLines(int goalie)
    {
        return Teams[5].ProLines[3].StartGoalie == goalie && Teams[5].Farm.FarmLines[7].BackupGoalie == goalie;
    }

    static constexpr int Untouched = RosterChange::Untouched;

    TeamMaker Five;

    const Box Success{64, "Auto Roster Function has been run successfully."};
    const Box PartialSuccess{64, "Auto Roster Partial Function has been run successfully."};
    const Box TooManyScratches{64, "Team 5 has too many players in scratch \r\n"
                                   "that cannot be sent to farm without being sent to waiver."};
};

} // namespace dravik
