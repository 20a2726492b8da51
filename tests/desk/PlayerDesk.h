#pragma once

#include "league/PersonId.h"
#include "support/FailingBoxes.h"
#include "support/LeagueBefore.h"
#include "support/SmallLeague.h"

namespace dravik {

// Skater 7, a left wing, and goalie 7 of team 5, the Harbour City Gulls; both dressed, fit and under contract.
class PlayerDesk : public SmallLeague {
protected:
    PlayerDesk()
    {
        const TeamMaker made(5);
        Teams[5].Name = "Harbour City Gulls";
        PutSkater(7, 5, position::LeftWing, status::Pro);
        PutGoalie(7, 5, status::Pro);
        Tilton.Name = "Ward Tilton";
        Tilton.Age = 27;
        Tilton.Contract = 3;
        Tilton.Salary = 1250000;
        Vos.Name = "Piet Vos";
        Vos.Age = 31;
        Vos.Contract = 2;
        LeagueData.MinSalary = 500000;
        LeagueData.MaxSalary = 8000000;
    }

    Player& Tilton = Players[7];
    Goalie& Vos = Goalies[7];
    PersonId Skater{.IsGoalie = false, .Slot = 7};
    PersonId Keeper{.IsGoalie = true, .Slot = 7};
};

} // namespace dravik
