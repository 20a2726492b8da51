#pragma once

#include "support/FailingBoxes.h"
#include "support/LeagueBefore.h"
#include "support/SmallLeague.h"

namespace dravik {

// Team 5, the Harbour City Gulls, and their farm, the Pebble Creek Ducks.
class OfficeDesk : public SmallLeague {
protected:
    OfficeDesk()
    {
        const TeamMaker made(5);
        Five.Name = "Harbour City Gulls";
        Five.Abbre = "HCG";
        Five.Gm = "Ward Tilton";
        Five.ProMorale = 51;
        Five.Farm.Name = "Pebble Creek Ducks";
        Five.Farm.Abbre = "PCD";
        Five.Farm.FarmMorale = 47;
    }

    Team& Five = Teams[5];
};

inline const Box NoValidInput{box::Warning, "No Valid Input!"};
inline const Box OnlyNumbers{box::Warning, "Only numbers are allowed in that textbox!"};
inline const Box OnlyLetters{box::Warning, "Only letters and spaces are allowed in that textbox!"};
inline const Box OnlyBoth{box::Warning, "Only numbers, letters and spaces are allowed in that textbox!"};

} // namespace dravik
